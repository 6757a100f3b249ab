#pragma once

#include "engine/rules/playfield.h"

namespace varnello {

/// The replay of the running game, forward or back, one undo step a tick of its timer.
class Replay {
public:
    explicit Replay(const Playfield& field) : field_(field) {}

    void Forward() { forwardOn_ = true; }
    void Back() { backwardOn_ = true; }
    /// Takes everything back and begins forward.
    void All();
    /// Ends the replay, once a tick has enabled that.
    void Stop();
    /// Ends the replay whatever it does.
    void End();

    /// A tick is due: from now on a person can stop the replay. Its step may still have to wait.
    void TickBegins() { stopEnabled_ = true; }
    /// `tmrForward`: one step of a forward replay. Nothing without a running game.
    void ForwardTick();
    /// `tmrBackward`: one step of a backward replay.
    void BackwardTick();

    bool ForwardOn() const { return forwardOn_; }
    bool BackwardOn() const { return backwardOn_; }
    bool StopEnabled() const { return stopEnabled_; }

private:
    Playfield field_;
    bool forwardOn_ = false;
    bool backwardOn_ = false;
    bool stopEnabled_ = false;
};

}  // namespace varnello
