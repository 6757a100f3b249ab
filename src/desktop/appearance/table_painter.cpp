#include "desktop/appearance/table_painter.h"

namespace varnello {
namespace {

int ToDevice(double twips, double ratio) { return qRound(twips / kTwipsPerPixel * ratio); }

void PaintPart(QPainter& painter, const QRect& at, const CardPictures::Part& part) {
    painter.drawImage(at.topLeft(), *part.sheet, part.rect);
}

}  // namespace

QSize TableSize(double ratio) {
    return {ToDevice(kTableWidth, ratio), ToDevice(kTableHeight, ratio)};
}

QRect RectOnTable(const CardPictures& pictures, double leftTwips, double topTwips) {
    return {QPoint(ToDevice(leftTwips, pictures.Ratio()), ToDevice(topTwips, pictures.Ratio())),
            pictures.CardSize()};
}

QImage BackgroundPicture(double ratio, const BackgroundChoice& choice) {
    QImage picture(TableSize(ratio), QImage::Format_RGB32);
    SetBG(picture, ratio, choice);
    return picture;
}

PicID CardAtPixel(const Table& table, const CardPictures& pictures, const QPoint& pixel) {
    PicID found = kNoCard;
    for (PicID id = 0; id < kCardObjects; ++id) {
        const KesCard& card = table.Card(id);
        if (!card.Visible || (found != kNoCard && card.Height < table.Card(found).Height)) continue;
        if (RectOnTable(pictures, card.Left, card.Top).contains(pixel)) found = id;
    }
    return found;
}

void PaintTable(QPainter& painter, const Table& table, const CardPictures& pictures, int deckIndex,
                const QRect& clip, PicID lowest, const std::function<void()>& lift) {
    ForEachSlot(table, [&](const char*, int, const KesEmpty& slot) {
        const QRect at = RectOnTable(pictures, slot.Left, slot.Top);
        if (slot.Visible && at.intersects(clip)) {
            PaintPart(painter, at, pictures.RightPic(slot.Picture));
        }
    });
    for (const PicID id : table.VisibleCards()) {
        if (id == lowest) lift();
        const KesCard& card = table.Card(id);
        const QRect at = RectOnTable(pictures, card.Left, card.Top);
        if (at.intersects(clip)) PaintPart(painter, at, pictures.Shown(card, deckIndex));
    }
}

}  // namespace varnello
