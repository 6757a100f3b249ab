// A colour as numbers from 0 to 255, which may be mixed and shaded.
#pragma once

namespace varnello::tiles {

struct Colour {
    double red = 0, green = 0, blue = 0;
};

constexpr Colour Rgb(unsigned code) {
    return {static_cast<double>(code >> 16 & 0xff), static_cast<double>(code >> 8 & 0xff),
            static_cast<double>(code & 0xff)};
}

constexpr Colour operator+(const Colour& left, const Colour& right) {
    return {left.red + right.red, left.green + right.green, left.blue + right.blue};
}

constexpr Colour operator*(const Colour& colour, double factor) {
    return {colour.red * factor, colour.green * factor, colour.blue * factor};
}

// The second colour laid over the first.
constexpr Colour Mix(const Colour& under, const Colour& over, double strength) {
    return under * (1 - strength) + over * strength;
}

// Lighter by a share of itself, or darker where the share is negative.
constexpr Colour Shade(const Colour& colour, double share) { return colour * (1 + share); }

}  // namespace varnello::tiles
