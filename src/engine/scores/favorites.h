#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/settings/data.h"
#include "engine/settings/game_number.h"

namespace varnello {

/// A deal that a player wants to come back to.
struct FavRecord {
    std::string Game;
    GameNumber GameNo;

    bool operator==(const FavRecord&) const = default;
};

/// The favorites, shared by all players: lines of the file "fav.dat", oldest first. The same deal
/// may stand there more than once.
class Favorites {
public:
    explicit Favorites(const cData& data) : data_(data) {}

    std::filesystem::path File() const;
    /// Empties the open list.
    void CloseFav() { FavList_.clear(); }
    /// Reads the file anew; damaged lines are skipped, lines beyond the 16-bit count aren't read.
    void OpenFav();
    /// Appends one line; the open list stays as it is. False when the file can't be written.
    bool AddFav(const std::string& game, const GameNumber& number) const;
    /// Deletes the file if there is one; the open list stays as it is. False when it can't be
    /// removed.
    bool ClearFav() const;

    std::int16_t FavTop() const { return static_cast<std::int16_t>(FavList_.size()); }
    /// An entry of the open list, 1 to `FavTop`.
    const FavRecord& GetFav(std::int16_t index) const {
        return FavList_.at(static_cast<std::size_t>(index - 1));
    }
    /// The numbers of one game in file order, as they are shown.
    std::vector<std::string> NumbersOf(std::string_view game) const;

private:
    const cData& data_;
    std::vector<FavRecord> FavList_;
};

}  // namespace varnello
