#include "evaluation.h"

#include <algorithm>

namespace varnello::findwin {
namespace {

constexpr int kRanks = 13;
constexpr std::array kSoon{8, 5, 3, 2, 1};  // worth of a card that waits for 0, 1, 2... others

}  // namespace

Evaluation::Evaluation(const Rules& rules, const Weights& weights)
    : rules_(rules), weights_(weights) {
    for (std::size_t kind = 0; kind < kKinds; ++kind) {
        chain_[kind] = static_cast<std::uint8_t>(ChainOf(static_cast<Kind>(kind)));
        step_[kind] = static_cast<std::uint8_t>(StepOf(static_cast<Kind>(kind)));
    }
}

int Evaluation::StepOf(Kind kind) const {
    const bool down = rules_.Family() == Tag::FreecellAK && SuitOf(kind) >= 2;
    return down ? kKing - RankOf(kind) : (RankOf(kind) - rules_.GoalBase() + kRanks) % kRanks;
}

int Evaluation::ChainOf(Kind kind) const {
    switch (rules_.GoalOrder()) {
        case OrderCode::UpSuit: return SuitOf(kind);
        case OrderCode::UpColor: return (SuitOf(kind) + RankOf(kind)) % 2;
        default: return 0;
    }
}

void Evaluation::WaitRoundTheRanks(const State& state, Waits& waits) const {
    std::array<int, kRanks> wait;
    wait.fill(kRanks);
    for (int i = 0; i < rules_.Map().goals; ++i) {
        const int goal = rules_.Map().Goal(i);
        if (state.Size(goal) == kRanks) continue;
        wait[static_cast<std::size_t>((RankOf(state.Top(goal)) + 1) % kRanks)] = 0;
    }
    for (std::size_t i = 1; i < std::size_t{2} * kRanks; ++i) {
        wait[i % kRanks] = std::min(wait[i % kRanks], wait[(i - 1) % kRanks] + 1);
    }
    for (std::size_t kind = 0; kind < kKinds; ++kind) {
        waits[kind] = static_cast<std::uint8_t>(wait[kind % kRanks]);
    }
}

void Evaluation::WaitInChains(const State& state, Waits& waits) const {
    std::array<int, 4> next;
    next.fill(kRanks);
    int empty = 0;
    for (int i = 0; i < rules_.Map().goals; ++i) {
        const int goal = rules_.Map().Goal(i);
        if (state.Empty(goal)) {
            ++empty;
            continue;
        }
        int& chain = next[static_cast<std::size_t>(chain_[state.Top(goal)])];
        chain = std::min(chain, state.Size(goal));
    }
    // An empty foundation opens any chain that has none yet, in two packs a second time.
    const bool twoPacks = rules_.TotalCards() > kKinds;
    for (int& chain : next) {
        if (empty > 0 && (chain == kRanks || twoPacks)) chain = 0;
    }
    for (std::size_t kind = 0; kind < kKinds; ++kind) {
        const int wait = step_[kind] - next[static_cast<std::size_t>(chain_[kind])];
        waits[kind] = static_cast<std::uint8_t>(std::max(wait, 0));
    }
}

Evaluation::Waits Evaluation::WaitsOf(const State& state) const {
    Waits waits;
    if (rules_.Family() == Tag::Stala) {
        WaitRoundTheRanks(state, waits);
    } else {
        WaitInChains(state, waits);
    }
    return waits;
}

int Evaluation::PileCost(std::span<const Kind> pile, const Waits& waits) const {
    int cost = 0;
    std::array<int, 4> earliest;
    earliest.fill(kRanks);
    for (std::size_t pos = 0; pos < pile.size(); ++pos) {
        const Kind kind = pile[pos];
        int& step = earliest[static_cast<std::size_t>(chain_[kind])];
        if (step < step_[kind]) cost += weights_.blocked;
        step = std::min<int>(step, step_[kind]);
    }
    int above = 0;  // in halves of a card: a group counts little more than a single card
    for (std::size_t pos = pile.size(); pos-- > 0;) {
        const auto wait = static_cast<std::size_t>(waits[pile[pos]]);
        if (wait < kSoon.size()) cost += weights_.dig * kSoon[wait] * above / 8;
        const bool joined = pos > 0 && rules_.FitsHome(pile[pos - 1], pile[pos]);
        if (pos > 0 && !joined) cost += weights_.breaks;
        above += joined ? 1 : 2;
    }
    return cost;
}

int Evaluation::RunPileCost(std::span<const Kind> pile) const {
    int cost = 0;
    for (std::size_t pos = 1; pos < pile.size(); ++pos) {
        if (rules_.FitsGoal(0, pile[pos], pile[pos - 1])) continue;
        cost += 2 * weights_.breaks;
        if (rules_.FitsHome(pile[pos - 1], pile[pos])) cost -= weights_.allowed;
        // Deep breaks come loose last.
        const std::size_t above = pile.size() - pos;
        cost += static_cast<int>(std::min<std::size_t>(above, 12)) * weights_.depth / 4;
    }
    return cost;
}

int Evaluation::Cost(const State& state) const {
    const PileMap& map = rules_.Map();
    int onGoals = 0;
    for (int i = 0; i < map.goals; ++i) onGoals += state.Size(map.Goal(i));
    int cost = weights_.left * (rules_.TotalCards() - onGoals);
    cost += weights_.inStock * state.Size(map.Stock());
    for (int i = 0; i < map.reserves; ++i) {
        if (!state.Empty(map.Res(i))) cost += weights_.reserve;
    }
    for (int pile = 0; pile < map.homes; ++pile) {
        if (state.Empty(pile)) cost -= weights_.emptyHome;
    }
    if (rules_.TakesRuns()) {
        for (int pile = 0; pile < map.homes; ++pile) cost += RunPileCost(state.Pile(pile));
        return cost;
    }
    const Waits waits = WaitsOf(state);
    for (int pile = 0; pile < map.homes; ++pile) cost += PileCost(state.Pile(pile), waits);
    cost += PileCost(state.Pile(map.Waste()), waits);
    if (rules_.OpenStock()) cost += PileCost(state.Pile(map.Stock()), waits);
    return cost;
}

}  // namespace varnello::findwin
