#include "desktop/accessible/card_names.h"

#include <QCoreApplication>

#include "desktop/platform/words.h"

namespace varnello {
namespace {

struct Names {
    Q_DECLARE_TR_FUNCTIONS(CardNames)
};

QString RankName(int num) {
    switch (num) {
        case 0: return Names::tr("Ace");
        case 10: return Names::tr("Jack");
        case 11: return Names::tr("Queen");
        case 12: return Names::tr("King");
        default: return AsFigure(num + 1);
    }
}

QString SuitName(int suit) {
    switch (suit) {
        case 0: return Names::tr("hearts");
        case 1: return Names::tr("spades");
        case 2: return Names::tr("diamonds");
        default: return Names::tr("clubs");
    }
}

}  // namespace

QString FaceName(const KesCard& card) {
    return Names::tr("%1 of %2", "a card: its rank, its suit")
        .arg(RankName(card.Num), SuitName(card.Suit));
}

QString CardName(const KesCard& card) {
    return card.FaceMode == FaceMode::Closed ? Names::tr("closed card") : FaceName(card);
}

QString PlaceName(Cell cell, int pile) {
    switch (cell) {
        case Cell::Home: return Names::tr("Tableau %1").arg(AsFigure(pile + 1));
        case Cell::Res: return Names::tr("Reserve %1").arg(AsFigure(pile + 1));
        case Cell::Goal: return Names::tr("Foundation %1").arg(AsFigure(pile + 1));
        case Cell::Waste: return Names::tr("Waste");
        case Cell::Stock: break;
    }
    return Names::tr("Stock");
}

QString PileName(const cArray& array, const Table& table, Cell cell, int pile) {
    const QString place = PlaceName(cell, pile);
    const int cards = array.GetTop(cell, pile) + 1;
    if (cards == 0) return Names::tr("%1, empty", "a pile").arg(place);
    const QString top = CardName(table.Card(array.GetTopPicID(cell, pile)));
    if (cards == 1) return Names::tr("%1, 1 card, %2", "a pile and its card").arg(place, top);
    return Names::tr("%1, %Ln cards, top %2", "a pile and its top card", cards).arg(place, top);
}

QString PlaceInPile(const cArray& array, const Place& place) {
    return Names::tr("%1, card %2 of %3", "a pile, from its bottom")
        .arg(PlaceName(place.Cell, place.Pile), AsFigure(place.Pos + 1),
             AsFigure(array.GetTop(place.Cell, place.Pile) + 1));
}

}  // namespace varnello
