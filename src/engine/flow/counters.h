#pragma once

#include <cstdint>
#include <optional>

#include "engine/desktop.h"
#include "engine/rules/playfield.h"

namespace varnello {

/// The captions at the right end of the menu bar; one without a value isn't shown.
struct CounterCaptions {
    std::optional<Phrase> mScore;
    std::optional<Phrase> mTime;
    std::optional<Phrase> mMoves;
};

/// Ten points for each card on a foundation, less a third of the seconds and half of the moves.
std::int16_t ScoreOf(int goalCards, std::int32_t seconds, std::int16_t moves);

/// Score, time and moves of the running game.
class Counters {
public:
    Counters(const Playfield& field, const Clock& clock) : field_(field), clock_(clock) {}

    /// The score from the time and moves of the last tick; 0 without a game.
    std::int16_t CalcScore() const;
    /// Seconds since the deal was shown; 0 without a game.
    std::int32_t ElapsedTime() const;
    /// Seconds since the program started.
    std::int32_t SessionTime() const;
    /// `tmrTime`: refreshes the stored counters; the result is what the menu bar shows.
    CounterCaptions TimeTick();

private:
    std::int32_t SecondsSince(std::int64_t start) const;
    /// The stock's mark in games with a redeal: the stop sign once nothing is left to turn over.
    void ShowRedealMark();

    Playfield field_;
    const Clock& clock_;
};

}  // namespace varnello
