#include "face.h"

#include "colours.h"
#include "court.h"
#include "pips.h"

#include <array>

namespace varnello::render {

namespace {

constexpr int firstCourt = 10;
constexpr int spades = 1;
const QString suitFile = QStringLiteral("suits.svg");

void DrawSuit(QPainter& painter, Artwork& artwork, int suit, const QRectF& target) {
    artwork.Draw(painter, suitFile, SuitName(suit), target);
}

// Rank and suit in the upper left corner, legible in a fan down and in a fan to the right.
void DrawIndex(QPainter& painter, const CardShape& shape, Artwork& artwork, Card card) {
    artwork.DrawTinted(painter, QStringLiteral("ranks.svg"), RankName(card.rank),
                       shape.Snap(4, 4, 8, 11), IsRed(card.suit) ? redInk : blackInk);
    DrawSuit(painter, artwork, card.suit, shape.Snap(15, 5, 9, 9));
    DrawSuit(painter, artwork, card.suit, shape.Snap(4, 18, 8, 8));
}

void DrawPip(QPainter& painter, const CardShape& shape, Artwork& artwork, int suit,
             const Pip& pip) {
    // A width of the same parity as the card's lets the middle column lie on whole pixels.
    const int width = shape.size.width();
    int side = shape.Px(pipSize);
    if ((side - width) % 2 != 0) ++side;
    const double top =
        pip.y == middleRow ? (shape.size.height() - side) / 2.0 : shape.Px(pip.y - pipSize / 2);
    if (pip.column == Column::Middle) {
        DrawSuit(painter, artwork, suit, QRectF((width - side) / 2.0, top, side, side));
        return;
    }
    const int left = shape.Px(leftColumn - pipSize / 2);
    DrawSuit(painter, artwork, suit, QRectF(left, top, side, side));
    DrawSuit(painter, artwork, suit, QRectF(width - left - side, top, side, side));
}

QRectF Centred(const CardShape& shape, double width, double height, double rise = 0) {
    const QPointF centre = QRectF(shape.Bounds()).center() - QPointF(0, rise * shape.ratio);
    const QSizeF size = QSizeF(width, height) * shape.ratio;
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

// The ace of spades is the showpiece of the deck and carries its emblem.
void DrawAceOfSpades(QPainter& painter, const CardShape& shape, Artwork& artwork) {
    artwork.Draw(painter, QStringLiteral("aces.svg"), QStringLiteral("spade"),
                 Centred(shape, 45, 58));
    // On small cards the wreath would blur, and the letter stands alone.
    const QString file = QStringLiteral("emblem.svg");
    if (shape.ratio < 1.5)
        artwork.DrawTinted(painter, file, "letter", shape.Snap(31, 36, 9, 8), paperColour);
    else
        artwork.DrawTinted(painter, file, "emblem", Centred(shape, 17, 17, 4.5).toRect(),
                           paperColour);
}

void DrawAce(QPainter& painter, const CardShape& shape, Artwork& artwork, int suit) {
    DrawSuit(painter, artwork, suit, Centred(shape, 27, 27));
    painter.setPen(QPen(IsRed(suit) ? redInk : blackInk, 0.7 * shape.ratio));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(Centred(shape, 43, 43));
}

}  // namespace

QString SuitName(int suit) {
    static const std::array<const char*, suitCount> names{"hearts", "spades", "diamonds", "clubs"};
    return QString::fromLatin1(names.at(static_cast<std::size_t>(suit)));
}

QString RankName(int rank) {
    static const std::array<const char*, rankCount> names{"ace",  "two",   "three", "four", "five",
                                                          "six",  "seven", "eight", "nine", "ten",
                                                          "jack", "queen", "king"};
    return QString::fromLatin1(names.at(static_cast<std::size_t>(rank)));
}

bool IsRed(int suit) { return suit % 2 == 0; }

void DrawFace(QPainter& painter, const CardShape& shape, Artwork& artwork, Card card) {
    DrawPaper(painter, shape);
    if (card.rank >= firstCourt)
        DrawCourt(painter, shape, artwork, SuitName(card.suit), RankName(card.rank));
    else if (card.rank == 0 && card.suit == spades)
        DrawAceOfSpades(painter, shape, artwork);
    else if (card.rank == 0)
        DrawAce(painter, shape, artwork, card.suit);

    // What stands in both halves is painted once and laid down a second time, turned.
    const QImage twinned = PaintImage(shape.size, [&](QPainter& inner) {
        DrawIndex(inner, shape, artwork, card);
        for (const Pip& pip : PipsOf(card.rank)) {
            if (pip.twinned) DrawPip(inner, shape, artwork, card.suit, pip);
        }
    });
    painter.drawImage(0, 0, twinned);
    painter.drawImage(0, 0, Turned(twinned));
    for (const Pip& pip : PipsOf(card.rank)) {
        if (!pip.twinned) DrawPip(painter, shape, artwork, card.suit, pip);
    }
}

}  // namespace varnello::render
