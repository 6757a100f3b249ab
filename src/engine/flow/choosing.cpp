#include "engine/flow/choosing.h"

#include <algorithm>
#include <cmath>

#include "engine/common/number_text.h"
#include "engine/common/text_file.h"

namespace varnello {
namespace {

/// Plain digits in groups of three; nothing for 0.
std::string Grouped(double number) {
    if (number == 0) return {};
    std::string text = WholeText(number);
    for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3) {
        text.insert(static_cast<std::size_t>(at), 1, ',');
    }
    return text;
}

}  // namespace

double NumberLimit(std::int16_t rangeIndex) {
    if (rangeIndex < 1) return 0;
    double limit = 1;
    for (int i = 0; i < std::min<int>(rangeIndex, 15); ++i) limit *= 10;
    return limit;
}

std::string HighestNumberText(std::int16_t rangeIndex) {
    return Grouped(std::max(NumberLimit(rangeIndex), 1.0) - 1);
}

GameNumber Choosing::RandomGNo() {
    const double limit = NumberLimit(data_.Get(keys::RangeIndex));
    numbers_.rtcRandomize(clock_.Timer());
    const double drawn = limit * static_cast<double>(numbers_.rtcRandomNext());
    return GameNumber::Number(std::max(std::floor(drawn), 1.0));
}

double Choosing::MaxGNo() const {
    return std::max(NumberLimit(data_.Get(keys::RangeIndex)), 1.0) - 1;
}

std::string Choosing::RangeText() const {
    return "0 and " + HighestNumberText(data_.Get(keys::RangeIndex));
}

bool Choosing::IsChoosable(std::string_view text) const {
    const auto value = ParseDecimal(text);
    if (!value) return false;
    // The test runs in 32 bits with strict bounds, so the longest numbers are rounded before it.
    const auto tested = static_cast<float>(*value);
    return tested > 0 && static_cast<double>(tested) < MaxGNo();
}

bool Choosing::AcceptNumber(const std::string& text) {
    if (IsChoosable(text)) return true;
    messages_.Inform("Please enter a number between " + RangeText());
    return false;
}

void Choosing::AddFavorite() {
    if (!favorites_.AddFav(data_.CurGName(), data_.CurGNo)) {
        messages_.Inform("The favorite could not be written to the file\n" +
                         PathText(favorites_.File()));
        return;
    }
    messages_.Inform("Game <" + data_.CurGNo.Shown() + "> Successfully Added to Favorites Under <" +
                     data_.CurGName() + "> Folder");
}

void Choosing::ClearFavorites() {
    if (!favorites_.ClearFav()) {
        messages_.Refuse("The favorites stay, because this file could not be removed:\n" +
                         PathText(favorites_.File()));
    }
    favorites_.OpenFav();
}

void Choosing::ClearRecentGames() {
    data_.Together([&] { data_.ClearRecent(); });
    messages_.Inform("Recent Games List has been Cleared.");
}

}  // namespace varnello
