#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace varnello::findwin {

/// Suit x 13 + rank: what a card is to the rules. The equal cards of two packs are one kind.
using Kind = std::uint8_t;
inline constexpr int kKinds = 52;

/// How the piles of all cells follow one another in a `State`.
struct PileMap {
    int homes = 0;
    int reserves = 0;
    int goals = 0;
    /// Whether what lies on the foundations says more than that it isn't elsewhere.
    bool goalsDiffer = true;

    int Res(int i) const { return homes + i; }
    int Goal(int i) const { return homes + reserves + i; }
    int Waste() const { return homes + reserves + goals; }
    int Stock() const { return Waste() + 1; }
    int Count() const { return Waste() + 2; }

    bool IsHome(int pile) const { return pile < homes; }
    bool IsRes(int pile) const { return pile >= homes && pile < Goal(0); }
    bool IsGoal(int pile) const { return pile >= Goal(0) && pile < Waste(); }
};

/// All piles one behind the other, each from its bottom card to its top.
class State {
public:
    static constexpr int kMaxPiles = 40;
    static constexpr int kMaxCards = 104;

    int Size(int pile) const { return End(pile) - Begin(pile); }
    bool Empty(int pile) const { return End(pile) == Begin(pile); }
    Kind Top(int pile) const { return cards_[static_cast<std::size_t>(End(pile) - 1)]; }
    std::span<const Kind> Pile(int pile) const {
        return {cards_.data() + Begin(pile), static_cast<std::size_t>(Size(pile))};
    }

    /// Adds a card to the last pile that holds any, or to one behind it.
    void Append(int pile, Kind kind);
    /// Moves the top `count` cards, keeping their order.
    void Transfer(int from, int to, int count);

    /// The same for all states that differ only in the order of equal piles of a cell.
    std::uint64_t Hash(const PileMap& map) const;

private:
    int Begin(int pile) const { return pile == 0 ? 0 : End(pile - 1); }
    int End(int pile) const { return ends_[static_cast<std::size_t>(pile)]; }

    std::array<Kind, kMaxCards> cards_{};
    std::array<std::uint8_t, kMaxPiles> ends_{};
};

}  // namespace varnello::findwin
