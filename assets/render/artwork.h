// Reads the drawings in the source folder and paints parts of them.
#pragma once

#include <QColor>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <map>
#include <memory>

namespace varnello::render {

class Artwork {
public:
    explicit Artwork(QString folder);

    // Fits the named element, by its own bounds, into the target.
    void Draw(QPainter& painter, const QString& file, const QString& element, const QRectF& target);
    // The same in one flat colour, whatever colour the drawing has.
    void DrawTinted(QPainter& painter, const QString& file, const QString& element,
                    const QRect& target, const QColor& colour);
    // Paints the named element where it stands when the whole page is fitted into the target.
    void DrawOnPage(QPainter& painter, const QString& file, const QString& element,
                    const QRectF& page);

private:
    QSvgRenderer& Open(const QString& file, const QString& element);

    QString folder_;
    std::map<QString, std::unique_ptr<QSvgRenderer>> drawings_;
};

}  // namespace varnello::render
