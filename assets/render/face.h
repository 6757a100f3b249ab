// Paints the faces of the 52 cards.
#pragma once

#include "artwork.h"
#include "card_shape.h"

namespace varnello::render {

inline constexpr int suitCount = 4;
inline constexpr int rankCount = 13;

// Suits from 0: hearts, spades, diamonds, clubs. Ranks from 0: ace to king.
struct Card {
    int suit;
    int rank;
};

QString SuitName(int suit);
QString RankName(int rank);
bool IsRed(int suit);

void DrawFace(QPainter& painter, const CardShape& shape, Artwork& artwork, Card card);

}  // namespace varnello::render
