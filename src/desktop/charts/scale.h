#pragma once

namespace varnello {

/// The range of an axis of values, and the distance of its marks. 0 is one of them.
struct Scale {
    double low = 0;
    double high = 1;
    double step = 1;
};

/// What the marks of an axis stand for.
enum class ScaleUnit {
    Count,   ///< 1, 2 or 5 times a power of ten
    Seconds  ///< what is round in seconds, minutes or hours
};

/// A scale from 0 or a mark below `lowest` to 0 or a mark above `highest`, as fine as it can be
/// with so many steps. Fewer than 3 steps count as 3.
Scale RoundScale(double lowest, double highest, int steps, ScaleUnit unit);

}  // namespace varnello
