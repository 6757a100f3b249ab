#include "engine/definitions/describe.h"

namespace varnello {
namespace {

std::string Count(int number, const std::string& one, const std::string& many) {
    std::string text = std::to_string(number);
    return text.append(" ").append(number == 1 ? one : many);
}

std::string Cards(int number) { return Count(number, "card", "cards"); }

std::string OrderText(OrderCode order) {
    switch (order) {
        case OrderCode::DownSuit: return "down in suit";
        case OrderCode::UpSuit: return "up in suit";
        case OrderCode::EitherSuit: return "up or down in suit";
        case OrderCode::DownColor: return "down in alternating colours";
        case OrderCode::UpColor: return "up in alternating colours";
        case OrderCode::EitherColor: return "up or down in alternating colours";
        case OrderCode::DownAny: return "down regardless of suit";
        case OrderCode::UpAny: return "up regardless of suit";
        case OrderCode::EitherAny: return "up or down regardless of suit";
        case OrderCode::Anything: return "in any order";
        case OrderCode::Nothing: break;
    }
    return "not at all";
}

std::string Pack(const GameRow& row) {
    if (row.Ext.TotalCards == 26)
        return "Half a pack is used: the hearts and the spades, 26 cards.";
    std::string text = row.Ext.TotalCards == 104 ? "Two packs, 104 cards, are used."
                                                 : "One pack of 52 cards is used.";
    if (row.Home.SuitType == SuitType::One) text += " All cards count as one suit.";
    return text;
}

bool IsSpider(const GameRow& row) { return row.Ext.Tag == Tag::Spider; }

std::string Aim(const GameRow& row) {
    const std::string all = "Bring all " + std::to_string(row.Ext.TotalCards) + " cards to the ";
    std::string text = all + Count(row.Goal.Piles, "foundation. ", "foundations. ");
    if (IsSpider(row)) {
        text = all + "foundations, in whole runs of thirteen from King down to Ace" +
               (row.Goal.Order == OrderCode::UpColor ? " in alternating colours. " : " in suit. ");
    }
    return text + Pack(row);
}

std::string Tableau(const GameRow& row) {
    const std::string piles = Count(row.Home.Piles, "pile", "piles");
    switch (row.Home.HomeType) {
        case HomeType::Staircase:
            return "The tableau is a staircase of " + piles +
                   ": one card on the first and one more on each that follows.";
        case HomeType::BySuit:
            return "Each card is dealt to the pile of its suit: four of the " + piles +
                   " of the tableau hold one suit each, the others begin empty.";
        case HomeType::Cone:
            return "The " + piles + " of the tableau hold 4, 5, 6, 7, 8, 7, 6, 5 and 4 cards.";
        case HomeType::AtRandom:
            return "Every card is dealt to one of the " + piles +
                   " of the tableau, drawn at random.";
        default: break;
    }
    return Cards(row.Home.Cards) + " are dealt in rows to the " + piles + " of the tableau.";
}

std::string Reserve(const GameRow& row) {
    std::string text = " The reserve has " + Count(row.Res.Piles, "cell", "cells");
    if (row.Res.Cards > 0)
        text += ", " + std::to_string(row.Res.Cards) + " of them filled at the start";
    return text + "; each holds one card of any kind.";
}

std::string Layout(const GameRow& row) {
    const int left = CardsLeftOnStock(row);
    const std::string stock = left > 0 ? " The other " + Cards(left) + " stay on the stock." : "";
    return Tableau(row) + Reserve(row) + stock + " All cards but those of a closed stock lie open.";
}

std::string Building(const GameRow& row) {
    if (row.Home.Order == OrderCode::Nothing) return "No card can be laid on a tableau pile.";
    std::string text = "Tableau piles are built " + OrderText(row.Home.Order) + ".";
    if (row.Home.AK != 0) text += " Ranks go round: a King may lie on an Ace.";
    return text;
}

std::string Groups(const GameRow& row) {
    if (row.Home.Order == OrderCode::Nothing) return "Cards are moved one at a time.";
    const OrderCode order =
        row.Home.MultiOrder == OrderCode::Nothing ? row.Home.Order : row.Home.MultiOrder;
    const std::string text =
        "Cards at the end of a pile that run " + OrderText(order) + " can be moved together, ";
    if (IsSpider(row)) return text + "however many they are.";
    return text +
           "as many as the free places allow: one more than the free reserve cells, times one more "
           "than the empty tableau piles.";
}

std::string EmptyPile(const GameRow& row) {
    if (row.Ext.Tag == Tag::Penguin) {
        return "An empty tableau pile takes only the rank just below the base rank.";
    }
    if (row.Home.EmptyNum == kAnyCard) return "An empty tableau pile takes any card or group.";
    if (row.Home.EmptyNum == kKing) return "An empty tableau pile takes only a King.";
    return "An empty tableau pile takes no card.";
}

std::string FoundationStart(const GameRow& row) {
    const int cards = row.Goal.Cards;
    switch (row.Goal.GoalType) {
        case GoalType::AcesAndKings: return " Two Aces and two Kings lie there from the start.";
        case GoalType::FirstCard:
            return " The first card of the deal sets the base rank; " + Cards(cards) +
                   " of that rank lie there from the start, and every foundation begins with it.";
        case GoalType::FirstCards:
            return " The first " + Cards(cards) + " of the deal start them, whatever they are.";
        default: break;
    }
    if (cards > 0) return " All " + std::to_string(cards) + " Aces lie there from the start.";
    return IsSpider(row) ? " They begin empty." : " They begin empty, each with an Ace.";
}

std::string Foundations(const GameRow& row) {
    if (IsSpider(row)) return "The foundations take whole runs only." + FoundationStart(row);
    std::string text = "The foundations are built " + OrderText(row.Goal.Order) +
                       (row.Goal.AK != 0 ? ", from King on to Ace," : "") +
                       " until they hold thirteen cards.";
    if (row.Ext.Tag == Tag::FreecellAK) {
        text =
            "The first two foundations are built up in suit from the Ace, the other two down in "
            "suit from the King.";
    }
    return text + FoundationStart(row) + " The top card of a foundation may be taken back.";
}

std::string Stock(const GameRow& row) {
    if (row.Stock.StockType == StockType::Open) {
        return "The stock lies open; its top card can be moved like a card of the tableau.";
    }
    if (row.Stock.StockMove == StockMove::Row) {
        return "A click on the stock deals one card to each tableau pile, whatever lies there.";
    }
    return "A click on the stock turns its top card over onto the waste, whose top card can be "
           "moved. The stock is gone through once.";
}

std::string Autoplay(const GameRow& row) {
    if (IsSpider(row)) return "A finished run goes to a foundation by itself, always.";
    if (row.Ext.DisAutoPlay != 0) return "No card goes up by itself in this game.";
    return "With Autoplay on, after each move every card that fits a foundation goes up by itself.";
}

}  // namespace

int CardsLeftOnStock(const GameRow& row) {
    const bool dealsAll = row.Home.HomeType == HomeType::BySuit ||
                          row.Home.HomeType == HomeType::Cone ||
                          row.Home.HomeType == HomeType::AtRandom;
    if (dealsAll) return 0;
    return row.Ext.TotalCards - row.Goal.Cards - row.Res.Cards - row.Home.Cards;
}

std::vector<GameFact> Describe(const GameRow& row) {
    std::vector<GameFact> facts{{"Aim", Aim(row)},
                                {"Layout", Layout(row)},
                                {"Building", Building(row)},
                                {"Groups", Groups(row)},
                                {"Empty piles", EmptyPile(row)},
                                {"Foundations", Foundations(row)}};
    if (CardsLeftOnStock(row) > 0) facts.push_back({"Stock", Stock(row)});
    facts.push_back({"Autoplay", Autoplay(row)});
    return facts;
}

}  // namespace varnello
