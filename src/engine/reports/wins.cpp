#include "engine/reports/wins.h"

namespace varnello {
namespace {

constexpr std::size_t kFewest = 3;  // wins that a place among them means something

/// By the ending of the English ordinal; other languages may take one sentence for all.
std::string_view PlaceSentence(int place) {
    const int tens = place / 10 % 10;
    const int ones = tens == 1 ? 0 : place % 10;
    switch (ones) {
        case 1: return say::Text("Your %1st fastest of %2");
        case 2: return say::Text("Your %1nd fastest of %2");
        case 3: return say::Text("Your %1rd fastest of %2");
        default: return say::Text("Your %1th fastest of %2");
    }
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

std::optional<Phrase> PlaceText(const OwnWins& wins) {
    const std::size_t all = wins.Others.size() + 1;
    if (all < kFewest) return {};
    const int count = static_cast<int>(all);
    if (wins.Place == 1) return Say("Your fastest of %1", {count});
    return Say(PlaceSentence(wins.Place), {wins.Place, count});
}

}  // namespace varnello
