#include "engine/scores/favorites.h"

#include <limits>
#include <optional>
#include <system_error>

#include "engine/common/csv.h"
#include "engine/common/text_file.h"
#include "engine/scores/record.h"

namespace varnello {
namespace {

constexpr std::size_t kLongestNumber = 400;  // characters
constexpr std::size_t kMaxFavorites = std::numeric_limits<std::int16_t>::max();

std::optional<FavRecord> ParseFavLine(std::string_view line) {
    FieldReader reader(line);
    std::string_view game;
    NumberField number;
    const bool sound =
        reader.Quoted(game) && reader.Comma() && number.Take(reader) && reader.AtEnd();
    if (!sound || number.Number().Shown().size() > kLongestNumber) return std::nullopt;
    return FavRecord{std::string(game), number.Number()};
}

}  // namespace

std::filesystem::path Favorites::File() const { return data_.AppDir() / "fav.dat"; }

void Favorites::OpenFav() {
    CloseFav();
    ForEachLine(File(), [&](std::string_view line) {
        if (FavList_.size() == kMaxFavorites) return;
        if (auto record = ParseFavLine(line)) FavList_.push_back(std::move(*record));
    });
}

bool Favorites::AddFav(const std::string& game, const GameNumber& number) const {
    return AppendLine(File(), QuotedField(game) + ',' + number.Field());
}

bool Favorites::ClearFav() const {
    std::error_code error;
    std::filesystem::remove(File(), error);
    return !error;
}

std::vector<std::string> Favorites::NumbersOf(std::string_view game) const {
    std::vector<std::string> numbers;
    for (const FavRecord& record : FavList_) {
        if (record.Game == game) numbers.push_back(record.GameNo.Shown());
    }
    return numbers;
}

}  // namespace varnello
