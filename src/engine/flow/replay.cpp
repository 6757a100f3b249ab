#include "engine/flow/replay.h"

namespace varnello {

void Replay::All() {
    field_.trans.UndoAll(1);
    forwardOn_ = field_.data.Playing();
}

void Replay::Stop() {
    if (stopEnabled_) End();
}

void Replay::End() {
    stopEnabled_ = false;
    forwardOn_ = false;
    backwardOn_ = false;
}

void Replay::ForwardTick() {
    if (!field_.data.Playing()) return;
    backwardOn_ = false;
    TickBegins();
    int speed = field_.data.Get(keys::ReplaySpeed);
    if (!field_.trans.Redo(speed)) End();
}

void Replay::BackwardTick() {
    if (!field_.data.Playing()) return;
    forwardOn_ = false;
    TickBegins();
    int speed = field_.data.Get(keys::ReplaySpeed);
    if (!field_.trans.Undo(speed)) End();
}

}  // namespace varnello
