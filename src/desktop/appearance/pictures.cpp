#include "desktop/appearance/pictures.h"

#include <QFile>
#include <array>
#include <cmath>

#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr std::array kRatios{1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};
constexpr double kWidth = 71;  // pixels at ratio 1
constexpr double kHeight = 96;
constexpr int kSuitCards = 13;
constexpr int kSlotPictures = 18;

/// The ready-made ratio that serves best: the same one, else the next larger one.
double ReadyRatio(double ratio) {
    for (const double ready : kRatios) {
        if (ready >= ratio - 0.01) return ready;
    }
    return kRatios.back();
}

QString FileOf(const QString& name, double ratio) {
    return QStringLiteral(":/cards/%1@%2.png").arg(name).arg(ReadyRatio(ratio));
}

}  // namespace

CardPictures::CardPictures(double ratio)
    : ratio_(ratio),
      size_(static_cast<int>(std::floor(kWidth * ratio + 0.5)),
            static_cast<int>(std::floor(kHeight * ratio + 0.5))) {}

const QImage& CardPictures::Sheet(QImage& sheet, const QString& name, QSize cells) const {
    if (sheet.isNull()) {
        const QSize wanted(size_.width() * cells.width(), size_.height() * cells.height());
        QImage image(FileOf(name, ratio_));
        if (image.size() != wanted) {
            image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        sheet = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return sheet;
}

CardPictures::Part CardPictures::MainPic(int n) const {
    const QImage& sheet = Sheet(faces_, QStringLiteral("faces"), {kSuitCards, 4});
    const QPoint cell((n - 1) % kSuitCards * size_.width(), (n - 1) / kSuitCards * size_.height());
    return {&sheet, QRect(cell, size_)};
}

CardPictures::Part CardPictures::RightPic(int i) const {
    const QImage& sheet = Sheet(slots_, QStringLiteral("slots"), {kSlotPictures, 1});
    return {&sheet, QRect(QPoint(i * size_.width(), 0), size_)};
}

CardPictures::Part CardPictures::DeckPic(int deckIndex) const {
    if (backIndex_ != deckIndex) {
        back_ = {};
        backIndex_ = deckIndex;
    }
    const auto nameOf = [](int id) { return QStringLiteral("back-%1").arg(id); };
    const bool known = QFile::exists(FileOf(nameOf(deckIndex), ratio_));
    const QString name = nameOf(known ? deckIndex : keys::DeckIndex.Default);
    return {&Sheet(back_, name, {1, 1}), QRect(QPoint(), size_)};
}

CardPictures::Part CardPictures::Shown(const KesCard& card, int deckIndex) const {
    if (card.FaceMode == FaceMode::Closed) return DeckPic(deckIndex);
    return MainPic(card.Suit * kSuitCards + card.Num + 1);
}

}  // namespace varnello
