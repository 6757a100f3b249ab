#include "desktop/appearance/preview.h"

#include "desktop/appearance/table_painter.h"
#include "engine/flow/engine.h"
#include "engine/null_desktop.h"

namespace varnello {
namespace {

// One deal for all pictures.
constexpr double kDealNumber = 1;

/// The upper part of the table that has the shape of the preview.
QRect VisiblePart(const QImage& table) {
    return {0, 0, table.width(), table.width() * kPreviewSize.height() / kPreviewSize.width()};
}

}  // namespace

QPixmap PreviewOf(const std::string& game, double ratio) {
    NullDesktop nothing;
    Engine engine(nothing.Interfaces({}));
    engine.data.Set(keys::Autoplay, 0);
    engine.StartGame(game, GameNumber::Number(kDealNumber));

    const CardPictures pictures(ratio);
    QImage picture = BackgroundPicture(ratio, {.fade = false});
    QPainter painter(&picture);
    PaintTable(painter, engine.table, pictures, keys::DeckIndex.Default, picture.rect());
    painter.end();

    const QImage small =
        picture.copy(VisiblePart(picture))
            .scaled(kPreviewSize * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmap preview = QPixmap::fromImage(small);
    preview.setDevicePixelRatio(ratio);
    return preview;
}

}  // namespace varnello
