#include "noise.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnello::tiles {

double Chance(std::uint64_t seed, std::uint64_t index) {
    std::uint64_t bits = seed * 0x9e3779b97f4a7c15U + (index + 1) * 0xd1b54a32d192ed03U;
    bits = (bits ^ bits >> 30) * 0xbf58476d1ce4e5b9U;
    bits = (bits ^ bits >> 27) * 0x94d049bb133111ebU;
    bits ^= bits >> 31;
    return static_cast<double>(bits >> 11) * 0x1p-53;
}

Field::Field(QSize period, double width, double height, int octaves, std::uint64_t seed)
    : period_(period) {
    double strength = 1;
    for (int number = 0; number < octaves; ++number) {
        const double fineness = std::exp2(number);
        Octave octave;
        octave.columns =
            std::max(1, static_cast<int>(std::lround(period.width() * fineness / width)));
        octave.rows =
            std::max(1, static_cast<int>(std::lround(period.height() * fineness / height)));
        octave.right = 0.381966 * (number + 1);
        octave.down = 0.618034 * (number + 1) + 0.25;
        octave.strength = strength;
        strength *= 0.55;
        for (int index = 0; index < octave.columns * octave.rows; ++index) {
            const double angle =
                2 * std::numbers::pi *
                Chance(seed * 64 + static_cast<unsigned>(number), static_cast<unsigned>(index));
            octave.gradients.push_back({std::cos(angle), std::sin(angle)});
        }
        octaves_.push_back(std::move(octave));
    }

    // Measured on a grid that falls between the points of the lattices.
    constexpr int samples = 67;
    double sum = 0;
    double squares = 0;
    for (int row = 0; row < samples; ++row) {
        for (int column = 0; column < samples; ++column) {
            const double value = Sum((column + 0.31) * period.width() / samples,
                                     (row + 0.73) * period.height() / samples);
            sum += value;
            squares += value * value;
        }
    }
    mean_ = sum / (samples * samples);
    scale_ = 1 / std::sqrt(squares / (samples * samples) - mean_ * mean_);
}

double Field::operator()(double x, double y) const { return (Sum(x, y) - mean_) * scale_; }

double Field::Sum(double x, double y) const {
    double sum = 0;
    for (const Octave& octave : octaves_) {
        sum += octave.strength * Value(octave, x * octave.columns / period_.width() + octave.right,
                                       y * octave.rows / period_.height() + octave.down);
    }
    return sum;
}

double Field::Value(const Octave& octave, double x, double y) {
    const int left = Floor(x);
    const int top = Floor(y);
    const int column = WrapIndex(left, octave.columns);
    const int row = WrapIndex(top, octave.rows);
    const int nextColumn = column + 1 == octave.columns ? 0 : column + 1;
    const int nextRow = row + 1 == octave.rows ? 0 : row + 1;
    const double u = x - left;
    const double v = y - top;
    const auto slope = [&](int atColumn, int atRow, double dx, double dy) {
        const Gradient& gradient = octave.gradients[TableIndex(atColumn, atRow, octave.columns)];
        return gradient.x * dx + gradient.y * dy;
    };
    const auto ease = [](double t) { return t * t * t * (t * (t * 6 - 15) + 10); };
    const auto between = [](double from, double to, double share) {
        return from + (to - from) * share;
    };
    const double across = ease(u);
    const double upper =
        between(slope(column, row, u, v), slope(nextColumn, row, u - 1, v), across);
    const double lower =
        between(slope(column, nextRow, u, v - 1), slope(nextColumn, nextRow, u - 1, v - 1), across);
    return between(upper, lower, ease(v));
}

}  // namespace varnello::tiles
