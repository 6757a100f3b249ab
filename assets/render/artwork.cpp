#include "artwork.h"

#include "card_shape.h"

#include <stdexcept>

namespace varnello::render {

Artwork::Artwork(QString folder) : folder_(std::move(folder)) {}

QSvgRenderer& Artwork::Open(const QString& file, const QString& element) {
    auto& drawing = drawings_[file];
    if (!drawing) {
        drawing = std::make_unique<QSvgRenderer>();
        if (!drawing->load(folder_ + '/' + file))
            throw std::runtime_error("cannot read drawing " + file.toStdString());
    }
    if (!drawing->elementExists(element))
        throw std::runtime_error("no " + element.toStdString() + " in " + file.toStdString());
    return *drawing;
}

void Artwork::Draw(QPainter& painter, const QString& file, const QString& element,
                   const QRectF& target) {
    Open(file, element).render(&painter, element, target);
}

void Artwork::DrawTinted(QPainter& painter, const QString& file, const QString& element,
                         const QRect& target, const QColor& colour) {
    const QImage picture = PaintImage(target.size(), [&](QPainter& inner) {
        const QRect box(QPoint(0, 0), target.size());
        Draw(inner, file, element, box);
        inner.setCompositionMode(QPainter::CompositionMode_SourceIn);
        inner.fillRect(box, colour);
    });
    painter.drawImage(target.topLeft(), picture);
}

void Artwork::DrawOnPage(QPainter& painter, const QString& file, const QString& element,
                         const QRectF& page) {
    QSvgRenderer& drawing = Open(file, element);
    const QRectF view = drawing.viewBoxF();
    QTransform fit;
    fit.translate(page.left(), page.top());
    fit.scale(page.width() / view.width(), page.height() / view.height());
    fit.translate(-view.left(), -view.top());
    drawing.render(&painter, element, fit.mapRect(drawing.boundsOnElement(element)));
}

}  // namespace varnello::render
