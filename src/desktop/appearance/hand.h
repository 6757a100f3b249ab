#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>

#include "engine/board/card.h"

namespace varnello {

/// The cards in a person's hand over the table and the place that would take them, in device pixels
/// with the table's corner at the origin.
struct Hand {
    PicID lowest = kNoCard;  ///< of the carried cards
    QRect cards;             ///< what they cover together
    QRect target;            ///< the card or slot they would lie on; empty when they would go back

    bool operator==(const Hand&) const = default;
};

/// The shadow of carried cards and the outline of their target, at one scale: device pixels of a
/// pixel of the table.
class HandPainter {
public:
    explicit HandPainter(double scale) : scale_(scale) {}

    /// Paints both; the cards themselves come on top.
    void Paint(QPainter& painter, const Hand& hand) const;
    /// All that `Paint` touches.
    QRegion Region(const Hand& hand) const;

private:
    int Pixels(double pixels) const;
    QRect ShadowOf(const QRect& cards) const;

    double scale_;
    mutable QImage shadow_;  ///< of the cards last carried
};

}  // namespace varnello
