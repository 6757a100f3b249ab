// All tiles with cards on them, for judging by eye.
#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace varnello::tiles {

struct Tile;

// One row for each group. The folder holds the rendered card sheets.
QImage ContactSheet(const std::vector<std::vector<Tile>>& groups, const QString& cardsFolder);

}  // namespace varnello::tiles
