#include "desktop/customize/look_icons.h"

#include <QApplication>
#include <QPainter>

#include "desktop/appearance/pictures.h"

namespace varnello {
namespace {

constexpr int kSide = 16;   // pixels
constexpr int kShown = 64;  // pixels of a background that are shrunk to an icon
constexpr QColor kEdge(0, 0, 0, 90);

/// `picture` shrunk into the middle of an icon, with a fine edge.
QIcon Shrunk(const QImage& picture, const QSize& size, double ratio) {
    QPixmap icon(QSize(kSide, kSide) * ratio);
    icon.setDevicePixelRatio(ratio);
    icon.fill(Qt::transparent);
    QImage small = picture.scaled(size * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    small.setDevicePixelRatio(1);
    QPainter painter(&icon);
    const QRect place(QPoint((kSide - size.width()) / 2, (kSide - size.height()) / 2), size);
    painter.drawImage(place, small);
    painter.setPen(kEdge);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    return icon;
}

}  // namespace

QIcon BackgroundIcon(const BackgroundChoice& choice) {
    const double ratio = qApp->devicePixelRatio();
    QImage surface(QSize(kShown, kShown) * ratio, QImage::Format_RGB32);
    SetBG(surface, ratio, choice);
    return Shrunk(surface, {kSide, kSide}, ratio);
}

QIcon DeckIcon(int deckIndex) {
    const double ratio = qApp->devicePixelRatio();
    const CardPictures pictures(ratio);
    const CardPictures::Part back = pictures.DeckPic(deckIndex);
    return Shrunk(back.sheet->copy(back.rect), {12, kSide}, ratio);
}

}  // namespace varnello
