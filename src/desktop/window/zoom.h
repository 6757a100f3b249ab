#pragma once

#include <QSize>

#include "engine/desktop.h"

namespace varnello {

/// How large a pixel of the table is on the screen, in percent: a step of a short ladder,
/// remembered between runs.
class Zoom {
public:
    explicit Zoom(SettingsStore& store);

    /// Whether nobody knows of it yet in this home; from then on somebody does.
    bool TakeNews();

    /// Percent; 100 is the table's own size.
    int Percent() const { return percent_; }
    double Factor() const { return percent_ / 100.0; }

    /// Goes up (1), down (-1) or back to 100 (0). `room` is what the screen has for the table,
    /// whose size is `table` at 100 percent: up to 200 percent it may be more than fits. False when
    /// the step isn't there.
    bool Step(int direction, QSize room, QSize table);
    /// The screen may be smaller than in the last run: takes the largest step that it allows.
    void FitInto(QSize room, QSize table);

private:
    SettingsStore& store_;
    bool news_;
    int percent_;
};

}  // namespace varnello
