#include "drawing.h"

#include <QPainter>

#include <stdexcept>

namespace varnello::drawings {

Drawing::Drawing(const QString& file) : renderer_(file) {
    if (!renderer_.isValid()) throw std::runtime_error(file.toStdString().append(" is no drawing"));
}

QImage Drawing::Picture(QSize size) const {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer_.render(&painter);
    return picture;
}

void Save(const QImage& picture, const QString& file) {
    if (!picture.save(file, "PNG")) throw std::runtime_error("cannot write " + file.toStdString());
}

}  // namespace varnello::drawings
