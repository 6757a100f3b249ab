#include "layout.h"

#include <array>
#include <span>

#include "../engine/board_checks.h"

namespace varnello::test {
namespace {

/// Cards on a tableau pile when all is dealt; -1 where chance decides.
int TableauSize(const cGames& games, int pile) {
    constexpr std::array kCone{4, 5, 6, 7, 8, 7, 6, 5, 4};
    const int piles = games.Piles(Cell::Home);
    switch (games.HomeType()) {
        case HomeType::Staircase: return pile + 1;
        case HomeType::BySuit: return pile < 4 ? 13 : 0;
        case HomeType::Cone: return kCone.at(static_cast<std::size_t>(pile));
        case HomeType::AtRandom: return -1;
        default: return (games.Cards(Cell::Home) + piles - 1 - pile) / piles;
    }
}

int ReserveSize(const cGames& games, int pile) {
    const int piles = games.Piles(Cell::Res);
    return (games.Cards(Cell::Res) + piles - 1 - pile) / piles;
}

/// The rank that a foundation's slot shows and that its starting card, if there is one, has.
int FoundationRank(const Dealer& deal, int pile) {
    switch (deal.games.GoalType()) {
        case GoalType::AcesAndKings: return 2 * pile < deal.games.Cards(Cell::Goal) ? kAce : kKing;
        case GoalType::FirstCard: return deal.table.Card(0).Num;
        case GoalType::FirstCards: return deal.table.Card(static_cast<PicID>(pile)).Num;
        default: return static_cast<int>(deal.games.GoalType());
    }
}

std::string FoundationFault(const Dealer& deal, int pile) {
    const bool started = pile < deal.games.Cards(Cell::Goal);
    if (deal.array.GetTop(Cell::Goal, pile) != (started ? 0 : -1)) return "foundation's size; ";
    if (!started) return {};
    const KesCard& card = deal.table.Card(deal.array.GetTopPicID(Cell::Goal, pile));
    const auto type = deal.games.GoalType();
    const bool bySuit = type != GoalType::FirstCard && type != GoalType::FirstCards;
    const bool right = card.Num == FoundationRank(deal, pile) && (!bySuit || card.Suitpile == pile);
    return right ? "" : "foundation's card; ";
}

std::string SizeFault(const Dealer& deal) {
    const cGames& games = deal.games;
    std::string fault;
    for (int pile = 0; pile < games.Piles(Cell::Home); ++pile) {
        const int size = TableauSize(games, pile);
        if (size >= 0 && deal.array.GetTop(Cell::Home, pile) + 1 != size) fault += "pile's size; ";
    }
    for (int pile = 0; pile < games.Piles(Cell::Res); ++pile) {
        const int size = ReserveSize(games, pile);
        if (deal.array.GetTop(Cell::Res, pile) + 1 != size) fault += "reserve's size; ";
    }
    for (int pile = 0; pile < games.Piles(Cell::Goal); ++pile) fault += FoundationFault(deal, pile);
    const bool toTheLast = games.HomeType() == HomeType::AtRandom;
    if (toTheLast && deal.array.GetTop(Cell::Stock, 0) >= 0) fault += "stock's size; ";
    if (deal.array.GetTop(Cell::Waste, 0) >= 0) fault += "waste's size; ";
    return fault;
}

std::string FaceFault(const Dealer& deal) {
    for (PicID id = 0; id < deal.games.TotalCards(); ++id) {
        const KesCard& card = deal.table.Card(id);
        const bool closed =
            card.Loc.Cell == Cell::Stock && deal.games.StockType() != StockType::Open;
        if ((card.FaceMode == FaceMode::Closed) != closed) return "face of a card; ";
    }
    return {};
}

template <typename Picture>
std::string SlotFault(std::span<const KesEmpty> slots, int piles, Picture&& picture) {
    for (int i = 0; i < static_cast<int>(slots.size()); ++i) {
        const KesEmpty& slot = slots[static_cast<std::size_t>(i)];
        if (slot.Visible != (i < piles)) return "number of slots; ";
        if (slot.Visible && slot.Picture != picture(i)) return "picture of a slot; ";
    }
    return {};
}

std::string SlotFaults(const Dealer& deal) {
    const cGames& games = deal.games;
    const Table& table = deal.table;
    const int stockMark = static_cast<int>(games.StockNum());
    const int base = deal.table.Card(0).Num;
    const int empty =
        games.Tag() == Tag::Penguin ? (base + 12) % 13 : static_cast<int>(games.EmptyNum());
    const auto plain = [](int) { return 14; };
    return SlotFault(table.PicHome, games.Piles(Cell::Home),
                     [&](int) { return empty < 0 ? 14 : empty; }) +
           SlotFault(table.PicRes, games.Piles(Cell::Res), plain) +
           SlotFault(table.PicRight, games.Piles(Cell::Goal),
                     [&](int pile) { return FoundationRank(deal, pile); }) +
           SlotFault(table.PicWaste, games.Piles(Cell::Waste), plain) +
           SlotFault(table.PicStock, stockMark > 0 ? 1 : 0, [&](int) { return 14 + stockMark; });
}

}  // namespace

std::string LayoutFault(const Dealer& deal) {
    return BoardFault(deal.array, deal.table, deal.games) + SizeFault(deal) + FaceFault(deal) +
           SlotFaults(deal);
}

}  // namespace varnello::test
