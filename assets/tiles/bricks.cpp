// Brick walls and pavements in five bonds.
#include "noise.h"
#include "tile.h"

#include <algorithm>
#include <cmath>

namespace varnello::tiles {

namespace {

// One brick with its half of the joint, and a place on it.
struct Brick {
    double x, y;
    double width, height;
    int number;
};

using Bond = Brick (*)(double x, double y, QSize size);

struct Look {
    Colour brick;
    Colour mortar;
    double spread;  // how far bricks differ from each other
};

// Courses on whole pixels: the first of them, the height of this one, and its number.
struct Course {
    int number;
    double y, height;
};

Course CourseAt(double y, int count, int height) {
    const auto top = [&](int number) { return std::round(number * height / double(count)); };
    int number = static_cast<int>(y * count / height);
    if (y < top(number)) --number;
    if (y >= top(number + 1)) ++number;
    return {number, y - top(number), top(number + 1) - top(number)};
}

// Stretchers, each course half a brick on.
Brick Running(double x, double y, QSize size) {
    constexpr int length = 32;
    const Course course = CourseAt(y, 12, size.height());
    const double along = Wrap(x + course.number % 2 * length / 2.0, size.width());
    const int column = static_cast<int>(along / length);
    return {along - column * length, course.y, length, course.height, course.number * 64 + column};
}

// A stretcher and a header in turn, headers above the middles of stretchers.
Brick Flemish(double x, double y, QSize size) {
    constexpr int pair = 64;
    constexpr int stretcher = 43;
    const Course course = CourseAt(y, 8, size.height());
    const double along = Wrap(x + course.number % 2 * pair / 2.0, size.width());
    const int column = static_cast<int>(along / pair);
    const double rest = along - column * pair;
    const int number = course.number * 64 + column * 2;
    if (rest < stretcher) return {rest, course.y, stretcher, course.height, number};
    return {rest - stretcher, course.y, pair - stretcher, course.height, number + 1};
}

// Courses of stretchers and courses of headers in turn.
Brick English(double x, double y, QSize size) {
    const Course course = CourseAt(y, 12, size.height());
    const int length = course.number % 2 == 0 ? 32 : 16;
    const double along = Wrap(x + (course.number % 2 == 0 ? 0 : 8), size.width());
    const int column = static_cast<int>(along / length);
    return {along - column * length, course.y, double(length), course.height,
            course.number * 64 + column};
}

Brick Herringbone(double x, double y, QSize size) {
    constexpr int unit = 16;
    const int columns = size.width() / unit;
    const int column = static_cast<int>(x / unit);
    const int row = static_cast<int>(y / unit);
    const double right = x - column * unit;
    const double down = y - row * unit;
    const auto number = [&](int atColumn, int atRow) {
        return WrapIndex(atRow, columns) * 64 + WrapIndex(atColumn, columns);
    };
    switch (WrapIndex(column - row, 4)) {
        case 0: return {right, down, 2 * unit, unit, number(column, row)};
        case 1: return {right + unit, down, 2 * unit, unit, number(column - 1, row)};
        case 2: return {right, down + unit, unit, 2 * unit, number(column, row - 1)};
        default: return {right, down, unit, 2 * unit, number(column, row)};
    }
}

// Squares of three bricks each, lying and standing in turn.
Brick Basket(double x, double y, QSize) {
    constexpr int square = 32;
    const int column = static_cast<int>(x / square);
    const int row = static_cast<int>(y / square);
    const double right = x - column * square;
    const double down = y - row * square;
    const bool standing = (column + row) % 2 == 1;
    const Course slat = CourseAt(standing ? right : down, 3, square);
    const int number = (row * 8 + column) * 64 + slat.number;
    if (standing) return {slat.y, down, slat.height, square, number};
    return {right, slat.y, square, slat.height, number};
}

Surface Wall(QSize size, Bond bond, const Look& look, unsigned seed) {
    const Field wobble(size, 12, 12, 2, seed);
    const Field clay(size, 7, 5, 3, seed + 1);
    const Field sand(size, 1.5, 1.5, 1, seed + 2);
    return [=](double x, double y) {
        const double bend = 0.22 * wobble(x, y);
        const Brick brick = bond(Wrap(x + bend, size.width()), Wrap(y - bend, size.height()), size);
        constexpr double joint = 1;
        const double lit = std::min(brick.x, brick.y) - joint;
        const double unlit = std::min(brick.width - brick.x, brick.height - brick.y) - joint;
        const auto number = static_cast<unsigned>(brick.number);
        Colour face = Shade(look.brick, look.spread * (2 * Chance(seed, number) - 1));
        face.red *= 1 + 0.03 * (Chance(seed + 3, number) - 0.5);
        const double edge = 0.07 * (1 - Step(0, 2, lit)) - 0.10 * (1 - Step(0, 2, unlit));
        face = Shade(face, 0.028 * clay(x, y) + 0.03 * sand(x, y) + edge);
        const Colour joints = Shade(look.mortar, 0.04 * sand(x, y) + 0.02 * clay(x, y));
        return Mix(joints, face, Step(-0.5, 0.5, std::min(lit, unlit)));
    };
}

Surface RedWall(QSize size) {
    return Wall(size, Running, {Rgb(0x7d4437), Rgb(0x80695c), 0.08}, 101);
}

Surface BlueWall(QSize size) {
    return Wall(size, Flemish, {Rgb(0x464e5b), Rgb(0x5f6468), 0.055}, 105);
}

Surface WhitewashedWall(QSize size) {
    return Wall(size, English, {Rgb(0xb3aa9a), Rgb(0xa0968a), 0.025}, 113);
}

Surface ClinkerPavement(QSize size) {
    return Wall(size, Herringbone, {Rgb(0x665044), Rgb(0x50453e), 0.065}, 117);
}

Surface MossyPavement(QSize size) {
    return Wall(size, Basket, {Rgb(0x56614a), Rgb(0x454f3c), 0.07}, 123);
}

}  // namespace

std::vector<Tile> BrickTiles() {
    constexpr QSize size(128, 128);
    return {{1, size, RedWall},
            {2, size, BlueWall},
            {3, size, WhitewashedWall},
            {4, size, ClinkerPavement},
            {5, size, MossyPavement}};
}

}  // namespace varnello::tiles
