#pragma once

#include <QPixmap>
#include <QSize>
#include <optional>
#include <string>

#include "desktop/appearance/pictures.h"

namespace varnello {

inline constexpr QSize kPreviewSize(318, 201);

/// Small pictures of the games' tables after their deals, painted by the table's own painter.
class Previews {
public:
    QPixmap Of(const std::string& game, double ratio);

private:
    std::optional<CardPictures> pictures_;  ///< of the last ratio
};

}  // namespace varnello
