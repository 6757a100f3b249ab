// The program's icon in the sizes that desktops ask for.
#pragma once

#include <QImage>
#include <QString>

namespace varnello::drawings {

/// The icon at a size in pixels. A folder holds varnello.svg for large sizes and varnello-SIZE.svg
/// for small ones, each drawn for its own grid of pixels.
QImage ProgramIcon(const QString& folder, int size);

/// Writes NAME/varnello.png, NAME being as in 48x48.
void WriteProgramIcon(const QString& folder, const QString& output, int size);

}  // namespace varnello::drawings
