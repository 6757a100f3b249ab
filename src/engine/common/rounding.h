#pragma once

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <limits>

namespace varnello {

/// The nearest whole number; a value exactly between two goes to the even one.
inline double RoundHalfEven(double value) {
    const double floor = std::floor(value);
    const double rest = value - floor;
    if (rest != 0.5) return rest < 0.5 ? floor : floor + 1.0;
    return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1.0;
}

/// Rounded to 2 decimals, halves to the even digit.
inline double RoundHalfEven2(double value) { return RoundHalfEven(value * 100.0) / 100.0; }

/// `value` as a signed 16-bit number; what lies outside stays at the limit instead of wrapping.
constexpr std::int16_t Saturate16(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// `value` as it is stored in 16 bits. It has to fit: anything else is a fault of the caller.
constexpr std::int16_t Narrow16(int value) {
    assert(value == static_cast<std::int16_t>(value));
    return static_cast<std::int16_t>(value);
}

/// `value` as a signed 32-bit number; what lies outside stays at the limit.
constexpr std::int32_t Saturate32(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// Rounded to the nearest 16-bit whole number, halves to even, held at the limits.
inline std::int16_t RoundTo16(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        std::clamp<double>(RoundHalfEven(value), Limits::min(), Limits::max()));
}

/// The same with 32 bits.
inline std::int32_t RoundTo32(double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<double>(RoundHalfEven(value), Limits::min(), Limits::max()));
}

}  // namespace varnello
