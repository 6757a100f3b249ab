#pragma once

#include <QString>

#include "desktop/appearance/preview.h"

namespace varnello {

/// The help pages, by name: "contents", "playing", "words" and "game:" with the name of a game.
/// Their pictures are "preview:" with the name of a game, and "small:" for half the size.
struct HelpPage {
    QString title;
    QString html;  ///< empty for a name that no page has
};

/// `columns` is how many games the contents show side by side.
HelpPage PageOf(const QString& name, int columns = 3);

/// Measures of the contents, in pixels.
inline constexpr QSize kSmallPreview(kPreviewSize.width() / 2, (kPreviewSize.height() + 1) / 2);
inline constexpr int kGridGap = 10;
inline constexpr int kContentsColumn = 150;  ///< the links beside the grid

/// The page of the game with this id, from 1 on; the contents for any other number.
QString PageNameOf(int gameId);

}  // namespace varnello
