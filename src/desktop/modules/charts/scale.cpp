#include "desktop/modules/charts/scale.h"

#include <algorithm>
#include <cmath>

namespace varnello {
namespace {

constexpr int kFewestSteps = 3;  // two may be too few for values on both sides of 0

}  // namespace

Scale RoundScale(double lowest, double highest, int steps) {
    steps = std::max(steps, kFewestSteps);
    for (double power = 1;; power *= 10) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            const double step = factor * power;
            const double below = std::floor(std::min(lowest, 0.0) / step);
            const double above = std::max(std::ceil(std::max(highest, 0.0) / step), below + 1);
            if (above - below <= steps) return {below * step, above * step, step};
        }
    }
}

}  // namespace varnello
