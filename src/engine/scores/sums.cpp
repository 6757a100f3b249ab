#include "engine/scores/sums.h"

namespace varnello {

ScoreSums::ScoreSums(const ScoreList& list)
    : byGame(list.Games().Size()), byPlayer(list.Players().Size()) {
    ScoreSummary sum;  // a local one stays in the processor's registers
    for (const CompactScore& score : list.All()) {
        sum.Add(score);
        byGame[score.Game].Add(score);
        PlayerEntry& player = byPlayer[score.Player];
        player.summary.Add(score);
        const bool won = score.Status == 1;
        player.streak.Add(won);
        if (score.Game >= player.byGame.size()) player.byGame.resize(score.Game + 1);
        player.byGame[score.Game].Add(won);
    }
    all = sum;
}

}  // namespace varnello
