// Where the pips of the cards two to ten stand.
#pragma once

#include <vector>

namespace varnello::render {

inline constexpr double pipSize = 13;
inline constexpr double leftColumn = 22.5;
inline constexpr double middleRow = 48;

enum class Column { Middle, Sides };

struct Pip {
    Column column;
    double y;      // of the pip's centre
    bool twinned;  // stands once more, turned by half, in the lower half
};

// Rank counts from 0 (ace); ranks without pips give an empty list.
inline std::vector<Pip> PipsOf(int rank) {
    constexpr double top = 24.5;
    constexpr double second = 40;
    constexpr auto middle = Column::Middle;
    constexpr auto sides = Column::Sides;
    switch (rank + 1) {
        case 2: return {{middle, top, true}};
        case 3: return {{middle, top, true}, {middle, middleRow, false}};
        case 4: return {{sides, top, true}};
        case 5: return {{sides, top, true}, {middle, middleRow, false}};
        case 6: return {{sides, top, true}, {sides, middleRow, false}};
        case 7: return {{sides, top, true}, {sides, middleRow, false}, {middle, 36, false}};
        case 8: return {{sides, top, true}, {sides, middleRow, false}, {middle, 36, true}};
        case 9: return {{sides, top, true}, {sides, second, true}, {middle, middleRow, false}};
        case 10: return {{sides, top, true}, {sides, second, true}, {middle, 32, true}};
        default: return {};
    }
}

}  // namespace varnello::render
