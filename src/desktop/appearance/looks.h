#pragma once

#include <QList>
#include <QString>

namespace varnello {

/// A group of backgrounds or decks, as the trees of the customize dialog show them. The items are
/// called by the group's name, " 0" and their place in it.
struct LookGroup {
    const char* name;
    QList<int> ids;
};

/// The tiled backgrounds.
const QList<LookGroup>& TileGroups();
/// The deck backs.
const QList<LookGroup>& DeckGroups();
/// Whether a deck number has a back of its own.
bool HasDeck(int deckIndex);

}  // namespace varnello
