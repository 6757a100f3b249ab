#include "desktop/charts/scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varnello {
namespace {

constexpr int kFewestSteps = 3;  // two may be too few for values on both sides of 0

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr std::array kSeconds{1.0,          2.0,          5.0,         10.0,        15.0,
                              30.0,         kMinute,      2 * kMinute, 5 * kMinute, 10 * kMinute,
                              15 * kMinute, 30 * kMinute, kHour,       2 * kHour,   3 * kHour,
                              6 * kHour,    12 * kHour,   24 * kHour};

/// The distance of marks that follows the last one in fineness; `index` from 0.
double Step(std::size_t index, ScaleUnit unit) {
    if (unit == ScaleUnit::Seconds && index < kSeconds.size()) return kSeconds[index];
    const std::size_t place = unit == ScaleUnit::Seconds ? index - kSeconds.size() : index;
    constexpr std::array kFactors{1.0, 2.0, 5.0};
    const std::size_t zeros = place / kFactors.size();
    const double power = std::pow(10.0, static_cast<double>(zeros));
    const double round = kFactors[place % kFactors.size()] * power;
    return unit == ScaleUnit::Seconds ? 50 * kHour * round : round;
}

}  // namespace

Scale RoundScale(double lowest, double highest, int steps, ScaleUnit unit) {
    steps = std::max(steps, kFewestSteps);
    for (std::size_t index = 0;; ++index) {
        const double step = Step(index, unit);
        const double below = std::floor(std::min(lowest, 0.0) / step);
        const double above = std::max(std::ceil(std::max(highest, 0.0) / step), below + 1);
        if (above - below <= steps) return {below * step, above * step, step};
    }
}

}  // namespace varnello
