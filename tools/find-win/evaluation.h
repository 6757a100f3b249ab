#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "rules.h"
#include "state.h"

namespace varnello::findwin {

/// What each kind of trouble on the table costs, in any unit.
struct Weights {
    int left = 0;       ///< a card that isn't on a foundation
    int inStock = 0;    ///< a card still in the stock, besides
    int breaks = 0;     ///< a card that doesn't continue the group below it
    int reserve = 0;    ///< a reserve in use
    int emptyHome = 0;  ///< gained for an empty tableau pile
    // Where cards go up one by one.
    int blocked = 0;  ///< a card above one that has to leave earlier
    int dig = 0;      ///< half a card above one that the foundations will soon want
    // Where whole runs go up.
    int depth = 0;    ///< a quarter of a card above a break
    int allowed = 0;  ///< gained for a break that the tableau allows
};

/// Tells how far a state seems to be from the win; less is better.
class Evaluation {
public:
    Evaluation(const Rules& rules, const Weights& weights);

    int Cost(const State& state) const;

private:
    /// For each kind the number of foundation cards that have to come before it, at the least.
    using Waits = std::array<std::uint8_t, kKinds>;

    int ChainOf(Kind kind) const;
    int StepOf(Kind kind) const;
    Waits WaitsOf(const State& state) const;
    void WaitRoundTheRanks(const State& state, Waits& waits) const;
    void WaitInChains(const State& state, Waits& waits) const;

    int PileCost(std::span<const Kind> pile, const Waits& waits) const;
    int RunPileCost(std::span<const Kind> pile) const;

    const Rules& rules_;
    Weights weights_;
    /// Cards of one chain go up one after the other, in the order of their steps.
    std::array<std::uint8_t, kKinds> chain_{};
    std::array<std::uint8_t, kKinds> step_{};
};

}  // namespace varnello::findwin
