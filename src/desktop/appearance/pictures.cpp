#include "desktop/appearance/pictures.h"

#include "render/face.h"
#include "render/sheets.h"

namespace varnello {
namespace {

/// Draws a sheet if it isn't there yet.
template <typename Draw>
const QImage& Drawn(QImage& sheet, double ratio, Draw draw) {
    if (sheet.isNull()) {
        render::Artwork artwork(QStringLiteral(":/cards"));
        sheet = draw(render::CardShape(ratio), artwork);
    }
    return sheet;
}

}  // namespace

CardPictures::CardPictures(double ratio) : ratio_(ratio), size_(render::CardShape(ratio).size) {}

CardPictures::Part CardPictures::MainPic(int n) const {
    const QImage& sheet = Drawn(faces_, ratio_, render::FacesSheet);
    const QPoint cell((n - 1) % render::rankCount * size_.width(),
                      (n - 1) / render::rankCount * size_.height());
    return {&sheet, QRect(cell, size_)};
}

CardPictures::Part CardPictures::RightPic(int i) const {
    const QImage& sheet = Drawn(slots_, ratio_, render::SlotsSheet);
    return {&sheet, QRect(QPoint(i * size_.width(), 0), size_)};
}

CardPictures::Part CardPictures::DeckPic(int deckIndex) const {
    if (back_.isNull() || backIndex_ != deckIndex) {
        back_ = render::BackPicture(render::CardShape(ratio_), deckIndex);
        backIndex_ = deckIndex;
    }
    return {&back_, QRect(QPoint(), size_)};
}

CardPictures::Part CardPictures::Shown(const KesCard& card, int deckIndex) const {
    if (card.FaceMode == FaceMode::Closed) return DeckPic(deckIndex);
    const Part face = MainPic(card.Suit * render::rankCount + card.Num + 1);
    if (!card.Selected) return face;
    if (negatives_.isNull()) {
        negatives_ = *face.sheet;
        negatives_.invertPixels();
    }
    return {&negatives_, face.rect};
}

}  // namespace varnello
