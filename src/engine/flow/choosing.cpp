#include <algorithm>

#include "engine/common/number_text.h"
#include "engine/flow/engine.h"

// What the dialogs that choose a deal decide.
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

double Engine::MaxGNo() const { return std::max(NumberLimit(data.Get(keys::RangeIndex)), 1.0) - 1; }

std::string HighestNumberText(std::int16_t rangeIndex) {
    return Grouped(std::max(NumberLimit(rangeIndex), 1.0) - 1);
}

std::string Engine::RangeText() const {
    return "0 and " + HighestNumberText(data.Get(keys::RangeIndex));
}

bool Engine::IsChoosable(std::string_view text) const {
    const auto value = ParseDecimal(text);
    if (!value) return false;
    // The test runs in 32 bits with strict bounds, so the longest numbers are rounded before it.
    const auto tested = static_cast<float>(*value);
    return tested > 0 && static_cast<double>(tested) < MaxGNo();
}

bool Engine::AcceptNumber(const std::string& text) {
    if (IsChoosable(text)) return true;
    desktop_.messages.Inform("Please enter a number between " + RangeText());
    return false;
}

void Engine::ClearRecentGames() {
    data.ClearRecent();
    desktop_.messages.Inform("Recent Games List has been Cleared.");
}

void Engine::AddFavorite() {
    if (!UpdateMenus().mFav1) return;
    if (!favorites.AddFav(data.CurGName(), data.CurGNo)) {
        const auto file = favorites.File().u8string();
        desktop_.messages.Inform("The favorite could not be written to the file\n" +
                                 std::string(file.begin(), file.end()));
        return;
    }
    desktop_.messages.Inform("Game <" + data.CurGNo.Shown() +
                             "> Successfully Added to Favorites Under <" + data.CurGName() +
                             "> Folder");
}

}  // namespace varnello
