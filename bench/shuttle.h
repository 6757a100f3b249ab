#pragma once

#include "engine/flow/engine.h"

namespace varnello {

/// Moves the top card of the first tableau pile by hand between the first two reserves, so many
/// times.
inline void Shuttle(Engine& engine, int moves) {
    const PicID card = engine.array().GetTopPicID(Cell::Home, 0);
    for (int i = 0; i < moves; ++i) {
        const KesEmpty& slot = engine.table().PicRes[static_cast<std::size_t>(i % 2)];
        const KesCard& moved = engine.table().Card(card);
        engine.gestures().MouseDown(card, 0, 0);
        engine.gestures().MouseMove(card, slot.Left - moved.Left, slot.Top - moved.Top);
        engine.gestures().MouseUp(card);
    }
}

}  // namespace varnello
