#pragma once

#include <QPixmap>
#include <QSize>
#include <string>

namespace varnello {

inline constexpr QSize kPreviewSize(318, 201);

/// A small picture of a game's table after its deal, painted by the table's own painter.
QPixmap PreviewOf(const std::string& game, double ratio);

}  // namespace varnello
