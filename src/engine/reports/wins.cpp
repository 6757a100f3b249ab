#include "engine/reports/wins.h"

namespace varnello {
namespace {

constexpr std::size_t kFewest = 3;  // wins that a place among them means something

std::string Ordinal(int number) {
    const int tens = number / 10 % 10;
    const int ones = tens == 1 ? 0 : number % 10;
    const char* const ending = ones == 1 ? "st" : ones == 2 ? "nd" : ones == 3 ? "rd" : "th";
    return std::to_string(number) + ending;
}

}  // namespace

std::optional<std::uint32_t> FindBooked(const ScoreList& list, const ScoreRecord& game) {
    const auto id = list.Players().Find(game.Player);
    std::size_t end = list.Size();
    while (id && end > 0 && list.At(end - 1).Player != *id) --end;
    if (!id || end == 0) return std::nullopt;
    ScoreRecord last = list.Record(end - 1);
    last.Date = game.Date;
    return last == game ? std::optional{static_cast<std::uint32_t>(end - 1)} : std::nullopt;
}

OwnWins OwnWinsOf(const ScoreList& list, const ScoreRecord& game) {
    OwnWins wins;
    const auto own = FindBooked(list, game);
    if (!own) return wins;
    const CompactScore& last = list.At(*own);
    for (std::size_t position = 0; position < *own; ++position) {
        const CompactScore& score = list.At(position);
        if (score.Player != last.Player || score.Game != last.Game || score.Status != 1) continue;
        wins.Others.push_back(list.Record(position));
        if (score.Time < last.Time) ++wins.Place;
    }
    return wins;
}

std::string PlaceText(const OwnWins& wins) {
    const std::size_t all = wins.Others.size() + 1;
    if (all < kFewest) return {};
    const std::string place = wins.Place == 1 ? "" : Ordinal(wins.Place) + ' ';
    return "Your " + place + "fastest of " + std::to_string(all);
}

}  // namespace varnello
