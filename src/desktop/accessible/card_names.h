#pragma once

#include <QString>

#include "engine/board/board.h"

/// What cards and piles are called for who can't see them.
namespace varnello {

/// "Queen of spades", whichever way the card lies.
QString FaceName(const KesCard& card);
/// The same, or "closed card".
QString CardName(const KesCard& card);
/// "Tableau 3"; `pile` counts from 0.
QString PlaceName(Cell cell, int pile);
/// "Tableau 3, 6 cards, top Queen of spades".
QString PileName(const cArray& array, const Table& table, Cell cell, int pile);
/// "Tableau 3, card 2 of 6".
QString PlaceInPile(const cArray& array, const Place& place);

}  // namespace varnello
