#pragma once

#include <QString>

namespace varnello {

/// The help pages, by name: "contents", "playing", "words" and "game:" with the name of a game.
struct HelpPage {
    QString title;
    QString html;  ///< empty for a name that no page has
};

HelpPage PageOf(const QString& name);

/// The page of the game with this id, 1 to 35; the contents for any other number.
QString PageNameOf(int gameId);

}  // namespace varnello
