#pragma once

#include <array>
#include <cstdint>

#include "engine/definitions/game_record.h"
#include "state.h"

namespace varnello::findwin {

inline int RankOf(Kind kind) { return kind % 13; }
inline int SuitOf(Kind kind) { return kind / 13; }

/// The rules of one deal, read from its record once: who may lie on whom as tables over the kinds.
class Rules {
public:
    /// `games` as the deal has left it; `autoplay` is the player's setting.
    Rules(const cGames& games, bool autoplay);

    const PileMap& Map() const { return map_; }
    /// Whether tableau, foundation and carried group accept `moved` upon `target`.
    bool FitsHome(Kind target, Kind moved) const { return Has(home_, target, moved); }
    bool FitsGroup(Kind target, Kind moved) const { return Has(group_, target, moved); }
    bool FitsGoal(int goal, Kind target, Kind moved) const {
        return Has(goal < 2 ? goal_ : upperGoal_, target, moved);
    }
    /// Whether the foundation with these cards takes this one.
    bool GoalTakes(const State& state, int goal, Kind moved) const;
    bool EmptyHomeTakes(Kind moved) const {
        return emptyNum_ == kAnyCard || emptyNum_ == RankOf(moved);
    }
    bool HomeTakes(const State& state, int pile, Kind moved) const {
        return state.Empty(pile) ? EmptyHomeTakes(moved) : FitsHome(state.Top(pile), moved);
    }
    /// The most cards that a carried group may have now.
    int GroupLimit(const State& state) const;

    bool TakesRuns() const { return tag_ == Tag::Spider; }
    bool PlaysUp() const { return autoplay_; }
    bool OpenStock() const { return stockType_ == StockType::Open; }
    bool DealsRows() const { return stockMove_ == StockMove::Row; }
    bool RanksOfGoalsGoRound() const { return goalAK_; }
    OrderCode GoalOrder() const { return goalOrder_; }
    Tag Family() const { return tag_; }
    int GoalBase() const { return goalBase_; }
    int TotalCards() const { return totalCards_; }

    /// Whether a completed run lies on top of a tableau pile.
    bool HasCompletedRun(const State& state, int pile) const;
    bool Won(const State& state) const;

private:
    using Table = std::array<std::uint64_t, kKinds>;
    static Table TableOf(OrderCode order, bool AK);
    static bool Has(const Table& table, Kind target, Kind moved) {
        return (table[target] >> moved & 1) != 0;
    }

    PileMap map_;
    Table home_;
    Table group_;
    Table goal_;
    Table upperGoal_;  ///< foundations from 2 on
    OrderCode goalOrder_;
    bool goalAK_;
    Tag tag_;
    bool autoplay_;
    StockType stockType_;
    StockMove stockMove_;
    int emptyNum_;
    int goalBase_;
    int totalCards_;
};

}  // namespace varnello::findwin
