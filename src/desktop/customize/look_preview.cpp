#include "desktop/customize/look_preview.h"

#include <QPainter>

#include "desktop/appearance/pictures.h"

namespace varnello {

LookPreview::LookPreview(const QString& name) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAccessibleName(name);
    setMinimumSize(170, 200);
}

void LookPreview::ShowBackground(const BackgroundChoice& choice) {
    choice_ = choice;
    background_ = {};
    update();
}

void LookPreview::ShowDeck(int deckIndex) {
    deckIndex_ = deckIndex;
    update();
}

void LookPreview::paintEvent(QPaintEvent* event) {
    const double ratio = devicePixelRatioF();
    const QRect inside = contentsRect();
    const QSize size = (QSizeF(inside.size()) * ratio).toSize();
    if (background_.size() != size) {
        background_ = QImage(size, QImage::Format_RGB32);
        SetBG(background_, ratio, choice_);
    }
    QImage surface = background_;
    if (deckIndex_) {
        const CardPictures pictures(ratio);
        const CardPictures::Part back = pictures.DeckPic(*deckIndex_);
        QPainter painter(&surface);
        painter.drawImage((surface.width() - back.rect.width()) / 2,
                          (surface.height() - back.rect.height()) / 2, *back.sheet);
    }
    surface.setDevicePixelRatio(ratio);
    QPainter(this).drawImage(inside.topLeft(), surface);
    QFrame::paintEvent(event);
}

}  // namespace varnello
