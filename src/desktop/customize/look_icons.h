#pragma once

#include <QIcon>

#include "desktop/appearance/background.h"

namespace varnello {

/// Small pictures of what the trees of looks offer.
QIcon BackgroundIcon(const BackgroundChoice& choice);
QIcon DeckIcon(int deckIndex);

}  // namespace varnello
