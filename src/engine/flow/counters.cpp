#include "engine/flow/counters.h"

#include <algorithm>

#include "engine/common/calendar.h"
#include "engine/common/rounding.h"
#include "engine/rules/deal.h"

namespace varnello {

std::int16_t ScoreOf(int goalCards, std::int32_t seconds, std::int16_t moves) {
    return RoundTo16(goalCards * 10 - (seconds / 3.0 + moves / 2.0));
}

std::int16_t Counters::CalcScore() const {
    if (!field_.data.GameRunning) return 0;
    return ScoreOf(field_.array.TotalGoalCards(), field_.data.CurTime, field_.data.CurMoves);
}

std::int32_t Counters::ElapsedTime() const {
    return field_.data.GameRunning ? SecondsSince(field_.data.GameStartSeconds) : 0;
}

std::int32_t Counters::SessionTime() const { return SecondsSince(field_.data.SesStartSeconds); }

std::int32_t Counters::SecondsSince(std::int64_t start) const {
    // A clock may have been set back.
    return Saturate32(std::max<std::int64_t>(clock_.Seconds() - start, 0));
}

CounterCaptions Counters::TimeTick() {
    CounterCaptions captions;
    cData& data = field_.data;
    if (!data.GameRunning) return captions;

    const std::int16_t moves = field_.trans.GetTransID();
    const std::int32_t elapsed = ElapsedTime();
    const std::int16_t currentScore = CalcScore();
    if (data.Get(keys::ShowScore) == 1) captions.mScore = Say("Score :%1", {currentScore});
    if (data.Get(keys::ShowTime) == 1) captions.mTime = Say("Time :%1", {Duration{elapsed}});
    if (data.Get(keys::ShowMoves) == 1) captions.mMoves = Say("Moves :%1", {moves});
    data.CurScore = currentScore;
    data.CurTime = elapsed;
    data.CurMoves = moves;
    if (field_.games.StockNum() == StockNum::Redeal) ShowRedealMark();
    return captions;
}

void Counters::ShowRedealMark() {
    cArray& array = field_.array;
    const bool cardsLeft = array.GetTop(Cell::Stock, 0) >= 0 || array.GetTop(Cell::Waste, 0) >= 0;
    const StockNum mark = cardsLeft ? StockNum::Redeal : StockNum::Stop;
    const std::int16_t picture = Narrow16(kPlainSlot + static_cast<int>(mark));
    KesEmpty& slot = field_.table.PicStock[0];
    if (slot.Picture == picture) return;
    slot.Picture = picture;
    array.ShowSlot(Cell::Stock, 0);
}

}  // namespace varnello
