// Drawings in SVG, made into pictures.
#pragma once

#include <QImage>
#include <QString>
#include <QSvgRenderer>

namespace varnello::drawings {

class Drawing {
public:
    /// Throws std::runtime_error when the file is no drawing.
    explicit Drawing(const QString& file);

    /// Its own size in pixels.
    QSize Size() const { return renderer_.defaultSize(); }
    /// The drawing on a transparent ground, stretched to a size in pixels.
    QImage Picture(QSize size) const;

private:
    // Rendering changes nothing that shows, though the toolkit's class doesn't say so.
    mutable QSvgRenderer renderer_;
};

/// Writes a PNG file; throws std::runtime_error when that fails.
void Save(const QImage& picture, const QString& file);

}  // namespace varnello::drawings
