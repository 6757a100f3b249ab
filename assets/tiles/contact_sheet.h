// All tiles with cards on them, for judging by eye.
#pragma once

#include <QImage>
#include <QString>

namespace varnello::tiles {

// One row for each group. The folder holds the drawings of the cards.
QImage ContactSheet(const QString& cardsFolder);

}  // namespace varnello::tiles
