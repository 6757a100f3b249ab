#include "desktop/appearance/preview.h"

#include <algorithm>

#include "desktop/appearance/sample_deal.h"
#include "desktop/appearance/table_painter.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

// The part of the table's width that a preview shows at least, lest the cards of small games look
// like those of another program.
constexpr double kLeastPart = 0.7;

/// What cards and slots cover, in device pixels.
QRect Covered(const Table& table, const CardPictures& pictures) {
    QRect covered;
    for (const KesCard& card : table.PicCards) {
        if (card.Visible) covered |= RectOnTable(pictures, card.Left, card.Top);
    }
    ForEachSlot(table, [&](const char*, int, const KesEmpty& slot) {
        if (slot.Visible) covered |= RectOnTable(pictures, slot.Left, slot.Top);
    });
    return covered;
}

/// The part of the table around its cards that has the shape of the preview.
QRect VisiblePart(QSize table, const QRect& cards, int margin) {
    const double shape = static_cast<double>(kPreviewSize.width()) / kPreviewSize.height();
    const QSize wanted = cards.size() + QSize(margin, margin) * 2;
    const double width =
        std::max({kLeastPart * table.width(), 1.0 * wanted.width(), wanted.height() * shape});
    QRect part;
    part.setWidth(std::min(static_cast<int>(width), table.width()));
    part.setHeight(static_cast<int>(part.width() / shape));
    part.moveCenter(cards.center());
    part.moveLeft(std::clamp(part.left(), 0, table.width() - part.width()));
    part.moveTop(std::clamp(part.top(), 0, table.height() - part.height()));
    return part;
}

}  // namespace

QPixmap Previews::Of(const std::string& game, double ratio) {
    const Table table = SampleDeal(game);
    if (!pictures_ || pictures_->Ratio() != ratio) pictures_.emplace(ratio);
    const CardPictures& pictures = *pictures_;
    QImage picture = BackgroundPicture(ratio, {.fade = false});
    QPainter painter(&picture);
    PaintTable(painter, table, pictures, keys::DeckIndex.Default, picture.rect());
    painter.end();

    const QRect cards = Covered(table, pictures);
    const QImage small =
        picture.copy(VisiblePart(picture.size(), cards, pictures.CardSize().width() / 4))
            .scaled(kPreviewSize * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmap preview = QPixmap::fromImage(small);
    preview.setDevicePixelRatio(ratio);
    return preview;
}

}  // namespace varnello
