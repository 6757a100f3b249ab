#include "engine/flow/counters.h"

#include <algorithm>

#include "engine/common/rounding.h"
#include "engine/flow/engine.h"
#include "engine/rules/deal.h"

namespace varnello {

void Engine::ShowRedealMark() {
    const bool cardsLeft = array_.GetTop(Cell::Stock, 0) >= 0 || array_.GetTop(Cell::Waste, 0) >= 0;
    const StockNum mark = cardsLeft ? StockNum::Redeal : StockNum::Stop;
    const std::int16_t picture = Narrow16(kPlainSlot + static_cast<int>(mark));
    if (table.PicStock[0].Picture == picture) return;
    table.PicStock[0].Picture = picture;
    array_.ShowSlot(Cell::Stock, 0);
}

std::int16_t ScoreOf(int goalCards, std::int32_t seconds, std::int16_t moves) {
    return RoundTo16(goalCards * 10 - (seconds / 3.0 + moves / 2.0));
}

std::int16_t Engine::CalcScore() const {
    if (!data.GameRunning) return 0;
    return ScoreOf(array_.TotalGoalCards(), data.CurTime, data.CurMoves);
}

std::int32_t Engine::ElapsedTime() const {
    if (!data.GameRunning) return 0;
    const std::int64_t seconds = SecondsBetween(data.GameStartTime, desktop_.clock.Now());
    return Saturate32(std::max<std::int64_t>(seconds, 0));  // a clock may have been set back
}

CounterCaptions Engine::TimeTick() {
    CounterCaptions captions;
    if (!data.GameRunning) return captions;

    const std::int16_t moves = trans_.GetTransID();
    const std::int32_t elapsed = ElapsedTime();
    const std::int16_t currentScore = CalcScore();  // from the time and moves of the last tick
    if (data.Get(keys::ShowScore) == 1) {
        captions.mScore = "Score :" + std::to_string(currentScore);
    }
    if (data.Get(keys::ShowTime) == 1) captions.mTime = "Time :" + FormatTime(elapsed);
    if (data.Get(keys::ShowMoves) == 1) captions.mMoves = "Moves :" + std::to_string(moves);
    data.CurScore = currentScore;
    data.CurTime = elapsed;
    data.CurMoves = moves;
    if (games.StockNum() == StockNum::Redeal) ShowRedealMark();
    return captions;
}

}  // namespace varnello
