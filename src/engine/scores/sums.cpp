#include "engine/scores/sums.h"

namespace varnello {

ScoreSums::ScoreSums(const ScoreList& list)
    : byGame(list.Games().Size()), byPlayer(list.Players().Size()) {
    for (std::size_t position = 0; position < list.Size(); ++position) {
        const CompactScore& score = list.At(position);
        all.Add(score);
        byGame[score.Game].summary.Add(score);
        byGame[score.Game].positions.push_back(static_cast<std::uint32_t>(position));
        byPlayer[score.Player].Add(score);
    }
}

}  // namespace varnello
