#pragma once

#include <string>
#include <string_view>

#include "engine/board/generator.h"
#include "engine/desktop.h"
#include "engine/scores/favorites.h"
#include "engine/settings/data.h"

namespace varnello {

/// To be asked before the recent list is cleared.
inline constexpr std::string_view kClearRecentQuestion =
    say::Text("Are you sure you want to clear the Recent Games List ?");

/// 10 to the power of a range index, at most 15; 0 for an index below 1.
double NumberLimit(std::int16_t rangeIndex);

/// The highest number of a range, 10 to its power less 1.
Grouped HighestNumber(std::int16_t rangeIndex);

/// What the dialogs that choose a deal decide: numbers, favorites, the recent list.
class Choosing {
public:
    Choosing(cData& data, Favorites& favorites, const Desktop& desktop)
        : data_(data), favorites_(favorites), clock_(desktop.clock), messages_(desktop.messages) {}

    /// Draws a number from the range of the settings; never below 1.
    GameNumber RandomGNo();
    /// The highest number, 10 to the power of the range less 1; numbers lie strictly below it.
    double MaxGNo() const;
    /// "0 and " and the highest number with its digits in groups.
    Phrase RangeText() const;
    /// Whether the text reads as a number between 0 and `MaxGNo`, tested as a 32-bit float. The
    /// text goes on exactly as it stands.
    bool IsChoosable(std::string_view text) const;
    /// The same, with a complaint when it doesn't.
    bool AcceptNumber(const std::string& text);

    /// Keeps the current game's deal as a favorite, and says so.
    void AddFavorite();
    /// Deletes the favorites, and says so when that can't be done.
    void ClearFavorites();
    /// Empties the recent list, and says so. To be asked before: `kClearRecentQuestion`.
    void ClearRecentGames();

private:
    cData& data_;
    Favorites& favorites_;
    Clock& clock_;
    Messages& messages_;
    Generator numbers_;  ///< of its own: a deal under way must not be disturbed
};

}  // namespace varnello
