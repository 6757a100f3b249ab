#include "desktop/customize/look_icons.h"

#include <QApplication>
#include <QPainter>

#include "desktop/appearance/pictures.h"

namespace varnello {
namespace {

constexpr int kSide = 16;         // pixels
constexpr double kShrunk = 0.25;  // how large a background's own pixels are shown
constexpr QColor kEdge(0, 0, 0, 90);

/// `picture` in the middle of an icon, with a fine edge.
QIcon IconOf(const QImage& picture, double ratio) {
    QPixmap pixmap(QSize(kSide, kSide) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QRect place(QPoint((pixmap.width() - picture.width()) / 2, 0), picture.size());
    painter.drawImage(place.topLeft(), picture);
    painter.setPen(kEdge);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);  // a selection doesn't tint it
    return icon;
}

}  // namespace

QIcon BackgroundIcon(const BackgroundChoice& choice) {
    const double ratio = qApp->devicePixelRatio();
    QImage surface(QSize(kSide, kSide) * ratio, QImage::Format_RGB32);
    SetBG(surface, ratio * kShrunk, choice);
    return IconOf(surface, ratio);
}

QIcon DeckIcon(int deckIndex) {
    const double ratio = qApp->devicePixelRatio();
    const CardPictures pictures(ratio);
    const CardPictures::Part back = pictures.DeckPic(deckIndex);
    return IconOf(back.sheet->scaledToHeight(qRound(kSide * ratio), Qt::SmoothTransformation),
                  ratio);
}

}  // namespace varnello
