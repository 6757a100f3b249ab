#include "moves.h"

#include <algorithm>

namespace varnello::findwin {
namespace {

Move MakeMove(int from, int to, int count = 1) {
    return {static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to),
            static_cast<std::uint8_t>(count)};
}

/// Collects the gestures of one state.
class Collector {
public:
    Collector(const Rules& rules, const State& state, std::vector<Move>& moves)
        : rules_(rules), map_(rules.Map()), state_(state), moves_(moves) {
        moves_.clear();
        freeRes_ = FirstEmpty(map_.Res(0), map_.reserves);
        emptyHome_ = FirstEmpty(0, map_.homes);
    }

    void Collect() {
        for (int pile = 0; pile < map_.homes; ++pile) {
            if (state_.Empty(pile)) continue;
            FromTop(pile);
            GroupsFrom(pile);
        }
        for (int i = 0; i < map_.reserves; ++i) {
            if (!state_.Empty(map_.Res(i))) FromTop(map_.Res(i));
        }
        if (!state_.Empty(map_.Waste())) FromTop(map_.Waste());
        FromStock();
        if (!rules_.PlaysUp() && !rules_.TakesRuns()) FromGoals();
    }

private:
    int FirstEmpty(int first, int count) const {
        for (int pile = first; pile < first + count; ++pile) {
            if (state_.Empty(pile)) return pile;
        }
        return -1;
    }

    void Add(int from, int to, int count = 1) { moves_.push_back(MakeMove(from, to, count)); }

    /// The single top card, wherever it may go.
    void FromTop(int pile) {
        const Kind kind = state_.Top(pile);
        if (!rules_.TakesRuns()) ToGoals(pile, kind);
        ToHomes(pile, kind, 1);
        if (freeRes_ >= 0 && !map_.IsRes(pile)) Add(pile, freeRes_);
    }

    void ToGoals(int pile, Kind kind) {
        bool triedEmpty = false;
        for (int goal = 0; goal < map_.goals; ++goal) {
            const bool empty = state_.Empty(map_.Goal(goal));
            if ((empty && triedEmpty) || !rules_.GoalTakes(state_, goal, kind)) continue;
            triedEmpty = triedEmpty || empty;
            Add(pile, map_.Goal(goal));
        }
    }

    void ToHomes(int pile, Kind bottom, int count) {
        for (int to = 0; to < map_.homes; ++to) {
            if (to == pile || state_.Empty(to)) continue;
            if (rules_.FitsHome(state_.Top(to), bottom)) Add(pile, to, count);
        }
        const bool wholePile = map_.IsHome(pile) && count == state_.Size(pile);
        if (emptyHome_ >= 0 && !wholePile && rules_.EmptyHomeTakes(bottom)) {
            Add(pile, emptyHome_, count);
        }
    }

    void GroupsFrom(int pile) {
        const auto cards = state_.Pile(pile);
        const int limit = std::min(rules_.GroupLimit(state_), static_cast<int>(cards.size()));
        for (int count = 2; count <= limit; ++count) {
            const auto bottom = cards.size() - static_cast<std::size_t>(count);
            if (!rules_.FitsGroup(cards[bottom], cards[bottom + 1])) return;
            ToHomes(pile, cards[bottom], count);
        }
    }

    void FromStock() {
        if (state_.Empty(map_.Stock())) return;
        if (rules_.OpenStock()) {
            FromTop(map_.Stock());
        } else {
            Add(map_.Stock(), rules_.DealsRows() ? map_.Stock() : map_.Waste());
        }
    }

    /// Cards may come back to the tableau. Pointless while they go up again by themselves.
    void FromGoals() {
        for (int i = 0; i < map_.goals; ++i) {
            const int goal = map_.Goal(i);
            if (!state_.Empty(goal)) ToHomes(goal, state_.Top(goal), 1);
        }
    }

    const Rules& rules_;
    const PileMap& map_;
    const State& state_;
    std::vector<Move>& moves_;
    int freeRes_;
    int emptyHome_;
};

bool PlayUp(const Rules& rules, State& state, int pile) {
    if (state.Empty(pile)) return false;
    for (int goal = 0; goal < rules.Map().goals; ++goal) {
        if (!rules.GoalTakes(state, goal, state.Top(pile))) continue;
        state.Transfer(pile, rules.Map().Goal(goal), 1);
        return true;
    }
    return false;
}

bool PlayFirstUp(const Rules& rules, State& state) {
    const PileMap& map = rules.Map();
    for (int pile = 0; pile < map.Goal(0); ++pile) {
        if (PlayUp(rules, state, pile)) return true;
    }
    return PlayUp(rules, state, map.Waste()) ||
           (rules.OpenStock() && PlayUp(rules, state, map.Stock()));
}

void TakeRunsOff(const Rules& rules, State& state) {
    const PileMap& map = rules.Map();
    for (int pile = 0; pile < map.homes; ++pile) {
        // Which foundation is all one: what lies there never moves again.
        if (rules.HasCompletedRun(state, pile)) state.Transfer(pile, map.Goal(0), 13);
    }
}

/// What the game does after each move. A pass begins anew with every card that goes up, so that
/// it ends when none is left.
void FollowUp(const Rules& rules, State& state) {
    if (rules.TakesRuns()) {
        TakeRunsOff(rules, state);
    } else if (rules.PlaysUp()) {
        while (PlayFirstUp(rules, state)) {
        }
    }
}

}  // namespace

void FindMoves(const Rules& rules, const State& state, std::vector<Move>& moves) {
    Collector(rules, state, moves).Collect();
}

void Apply(const Rules& rules, State& state, const Move& move) {
    if (!move.DealsRow()) {
        state.Transfer(move.from, move.to, move.count);
        FollowUp(rules, state);
        return;
    }
    for (int pile = 0; pile < rules.Map().homes && !state.Empty(move.from); ++pile) {
        state.Transfer(move.from, pile, 1);
        FollowUp(rules, state);
    }
}

}  // namespace varnello::findwin
