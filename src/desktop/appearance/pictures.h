#pragma once

#include <QImage>
#include <QSize>

#include "engine/board/card.h"

namespace varnello {

/// The card pictures at one device pixel ratio, any that is wanted. Sheets are drawn when first
/// needed, in less than the time of a display frame for all faces at ratio 1 and in about two at
/// ratio 3.
class CardPictures {
public:
    /// A card's picture within a sheet, in device pixels.
    struct Part {
        const QImage* sheet = nullptr;
        QRect rect;
    };

    explicit CardPictures(double ratio);

    double Ratio() const { return ratio_; }
    /// A card's size in device pixels; whole, so that its edge stays sharp.
    QSize CardSize() const { return size_; }

    /// Card face 1 to 52: hearts, spades, diamonds, clubs, each from the Ace to the King.
    Part MainPic(int n) const;
    /// Slot picture 0 to 17.
    Part RightPic(int i) const;
    /// The back with this deck number; the default back for a number that has none.
    Part DeckPic(int deckIndex) const;
    /// What a card shows now.
    Part Shown(const KesCard& card, int deckIndex) const;

private:
    double ratio_;
    QSize size_;
    mutable QImage faces_;
    mutable QImage negatives_;
    mutable QImage slots_;
    mutable QImage back_;
    mutable int backIndex_ = 0;
};

}  // namespace varnello
