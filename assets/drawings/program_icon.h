// The program's icon in the sizes that desktops ask for.
#pragma once

#include <QImage>
#include <QString>

#include <array>

namespace varnello::drawings {

/// In pixels.
inline constexpr std::array kIconSizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

/// The icon at one of the sizes. A folder holds varnello.svg for large sizes and varnello-SIZE.svg
/// for small ones, each drawn for its own grid of pixels.
QImage ProgramIcon(const QString& folder, int size);

/// Writes NAME/varnello.png for each size, NAME being as in 48x48.
void WriteProgramIcon(const QString& folder, const QString& output);

}  // namespace varnello::drawings
