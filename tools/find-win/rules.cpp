#include "rules.h"

#include <limits>

#include "engine/rules/order.h"
#include "engine/rules/stacks.h"

namespace varnello::findwin {
namespace {

constexpr int kFullFoundation = 13;

KesCard CardOf(int kind) {
    KesCard card;
    card.SetValue(static_cast<std::int16_t>(kind / 13), static_cast<std::int16_t>(kind % 13), 0);
    return card;
}

}  // namespace

Rules::Table Rules::TableOf(OrderCode order, bool AK) {
    Table table{};
    for (int target = 0; target < kKinds; ++target) {
        for (int moved = 0; moved < kKinds; ++moved) {
            if (!FitsOrder(CardOf(target), CardOf(moved), order, AK)) continue;
            table[static_cast<std::size_t>(target)] |= std::uint64_t{1} << moved;
        }
    }
    return table;
}

Rules::Rules(const cGames& games, bool autoplay)
    : map_{games.Piles(Cell::Home), games.Piles(Cell::Res), games.Piles(Cell::Goal),
           games.Tag() != Tag::Spider},
      home_(TableOf(games.Order(Cell::Home, 0), games.AK(Cell::Home))),
      group_(TableOf(games.MultiOrder(), games.AK(Cell::Home))),
      goal_(TableOf(games.Order(Cell::Goal, 0), games.AK(Cell::Goal))),
      upperGoal_(TableOf(games.Order(Cell::Goal, 2), games.AK(Cell::Goal))),
      goalOrder_(games.Order(Cell::Goal, 0)),
      goalAK_(games.AK(Cell::Goal)),
      tag_(games.Tag()),
      autoplay_(autoplay && !games.DisAutoPlay() && games.Tag() != Tag::Spider),
      stockType_(games.StockType()),
      stockMove_(games.StockMove()),
      emptyNum_(games.EmptyNum()),
      goalBase_(games.GoalBase()),
      totalCards_(games.TotalCards()) {}

bool Rules::GoalTakes(const State& state, int goal, Kind moved) const {
    const int pile = map_.Goal(goal);
    if (state.Empty(pile)) return RankOf(moved) == goalBase_;
    return state.Size(pile) < kFullFoundation && FitsGoal(goal, state.Top(pile), moved);
}

int Rules::GroupLimit(const State& state) const {
    if (!HasStackLimit(tag_)) return std::numeric_limits<int>::max();
    int emptyPiles = 0;
    for (int pile = 0; pile < map_.homes; ++pile) emptyPiles += state.Empty(pile);
    int freeCells = 0;
    for (int i = 0; i < map_.reserves; ++i) freeCells += state.Empty(map_.Res(i));
    return (freeCells + 1) * (emptyPiles + 1);
}

bool Rules::HasCompletedRun(const State& state, int pile) const {
    const auto cards = state.Pile(pile);
    if (cards.size() < 13 || RankOf(cards.back()) != kAce) return false;
    for (std::size_t pos = cards.size() - 1; pos > cards.size() - 13; --pos) {
        if (!FitsGoal(0, cards[pos], cards[pos - 1])) return false;
    }
    return true;
}

bool Rules::Won(const State& state) const {
    int cards = 0;
    for (int i = 0; i < map_.goals; ++i) cards += state.Size(map_.Goal(i));
    return cards == totalCards_;
}

}  // namespace varnello::findwin
