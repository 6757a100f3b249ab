#include "desktop/appearance/looks.h"

#include <algorithm>

#include "render/back.h"
#include "tiles/tile.h"

namespace varnello {

const QList<LookGroup>& TileGroups() {
    static const QList<LookGroup> groups = [] {
        QList<LookGroup> all;
        for (const tiles::TileGroup& group : tiles::TileGroups()) {
            LookGroup look{.name = group.name, .ids = {}};
            for (const tiles::Tile& tile : group.tiles) look.ids << tile.id;
            all << look;
        }
        return all;
    }();
    return groups;
}

const QList<LookGroup>& DeckGroups() {
    static const QList<LookGroup> groups = [] {
        QList<LookGroup> all;
        for (const render::BackGroup& group : render::BackGroups()) {
            all << LookGroup{group.name, {group.numbers.begin(), group.numbers.end()}};
        }
        return all;
    }();
    return groups;
}

bool HasDeck(int deckIndex) {
    const QList<LookGroup>& groups = DeckGroups();
    return std::any_of(groups.begin(), groups.end(),
                       [&](const LookGroup& group) { return group.ids.contains(deckIndex); });
}

}  // namespace varnello
