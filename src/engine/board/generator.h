#pragma once

#include <cstdint>

namespace varnello {

/// The pseudo-random generator behind every deal: 24 bits of state, a linear congruence. Deals are
/// known by their numbers, so its arithmetic never changes.
class Generator {
public:
    /// Advances and returns the next number, 0 or more and below 1; exact in a 32-bit float.
    float rtcRandomNext();
    /// A negative argument sets the state from itself alone before advancing.
    float rtcRandomNext(float negative);
    /// Folds `number` into the state; the low 8 bits of the state stay as they are.
    void rtcRandomize(double number);

private:
    std::uint32_t state_ = 0x50000;
};

}  // namespace varnello
