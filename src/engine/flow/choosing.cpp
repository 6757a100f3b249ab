#include "engine/flow/choosing.h"

#include <algorithm>
#include <cmath>

#include "engine/common/number_text.h"
#include "engine/common/text_file.h"

namespace varnello {

double NumberLimit(std::int16_t rangeIndex) {
    if (rangeIndex < 1) return 0;
    double limit = 1;
    for (int i = 0; i < std::min<int>(rangeIndex, 15); ++i) limit *= 10;
    return limit;
}

Grouped HighestNumber(std::int16_t rangeIndex) {
    return {std::max(NumberLimit(rangeIndex), 1.0) - 1};
}

GameNumber Choosing::RandomGNo() {
    const double limit = NumberLimit(data_.Get(keys::RangeIndex));
    numbers_.rtcRandomize(clock_.Timer());
    const double drawn = limit * static_cast<double>(numbers_.rtcRandomNext());
    return GameNumber::Number(std::max(std::floor(drawn), 1.0));
}

double Choosing::MaxGNo() const { return HighestNumber(data_.Get(keys::RangeIndex)).Value; }

Phrase Choosing::RangeText() const {
    return Say("0 and %1", {HighestNumber(data_.Get(keys::RangeIndex))});
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
    messages_.Inform(Say("Please enter a number between 0 and %1",
                         {HighestNumber(data_.Get(keys::RangeIndex))}));
    return false;
}

void Choosing::AddFavorite() {
    if (!favorites_.AddFav(data_.CurGName(), data_.CurGNo)) {
        messages_.Inform(Say("The favorite could not be written to the file\n%1",
                             {PathText(favorites_.File())}));
        return;
    }
    messages_.Inform(Say("Game <%1> Successfully Added to Favorites Under <%2> Folder",
                         {data_.CurGNo.Shown(), data_.CurGName()}));
}

void Choosing::ClearFavorites() {
    if (!favorites_.ClearFav()) {
        messages_.Refuse(Say("The favorites stay, because this file could not be removed:\n%1",
                             {PathText(favorites_.File())}));
    }
    favorites_.OpenFav();
}

void Choosing::ClearRecentGames() {
    data_.Together([&] { data_.ClearRecent(); });
    messages_.Inform(Say("Recent Games List has been Cleared."));
}

}  // namespace varnello
