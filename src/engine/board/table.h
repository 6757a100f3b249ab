#pragma once

#include <array>
#include <vector>

#include "engine/board/card.h"

namespace varnello {

/// The card and slot objects. They are made once and reused by every game.
class Table {
public:
    KesCard& Card(PicID id) { return PicCards[static_cast<std::size_t>(id)]; }
    const KesCard& Card(PicID id) const { return PicCards[static_cast<std::size_t>(id)]; }

    /// The slot of a pile.
    KesEmpty& Slot(Cell cell, int pile);

    void BringToFront(PicID id) { Card(id).Height = ++front_; }

    /// The visible cards from the backmost to the frontmost; sorted only when that has changed.
    const std::vector<PicID>& VisibleCards() const;
    /// The frontmost visible card that covers this point in twips, or `kNoCard`.
    PicID CardAt(double x, double y) const;

    /// Hides everything and sets the values and places of all cards to zero.
    void Clear();

    std::array<KesCard, kCardObjects> PicCards;
    std::array<KesEmpty, kHomeSlots> PicHome;
    std::array<KesEmpty, kResSlots> PicRes;
    std::array<KesEmpty, kGoalSlots> PicRight;
    std::array<KesEmpty, kWasteSlots> PicWaste;
    std::array<KesEmpty, kStockSlots> PicStock;

private:
    std::uint64_t front_ = 0;
    mutable std::vector<PicID> order_;  ///< as it was asked for last
};

/// Whether two tables look the same: what is visible on them, where, and what lies in front.
bool LooksSame(const Table& one, const Table& other);

/// Calls `visit(arrayName, index, slot)` for every slot, in the order home, res, right, waste,
/// stock.
template <typename SomeTable, typename Visit>
void ForEachSlot(SomeTable& table, Visit&& visit) {
    const auto each = [&](const char* name, auto& slots) {
        for (std::size_t i = 0; i < slots.size(); ++i) visit(name, static_cast<int>(i), slots[i]);
    };
    each("home", table.PicHome);
    each("res", table.PicRes);
    each("right", table.PicRight);
    each("waste", table.PicWaste);
    each("stock", table.PicStock);
}

}  // namespace varnello
