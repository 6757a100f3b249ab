#include "program_icon.h"

#include "drawing.h"

#include <QDir>
#include <QFile>
#include <QPainter>

#include <stdexcept>

namespace varnello::drawings {

namespace {

/// The same picture with a transparent margin around it.
QImage WithMargin(const QImage& picture, int margin) {
    return picture.copy(picture.rect().adjusted(-margin, -margin, margin, margin));
}

}  // namespace

QImage ProgramIcon(const QString& folder, int size) {
    // By custom, desktops that use 24 pixels show what others show at 22, with air around it.
    if (size == 24) return WithMargin(ProgramIcon(folder, 22), 1);
    const QString fitting = folder + QStringLiteral("/varnello-%1.svg").arg(size);
    const Drawing drawing(QFile::exists(fitting) ? fitting : folder + "/varnello.svg");
    return drawing.Picture({size, size});
}

void WriteProgramIcon(const QString& folder, const QString& output, int size) {
    const QString place = output + QStringLiteral("/%1x%1").arg(size);
    if (!QDir().mkpath(place))
        throw std::runtime_error("cannot make folder " + place.toStdString());
    Save(ProgramIcon(folder, size), place + "/varnello.png");
}

}  // namespace varnello::drawings
