// The backs of the deck, each a pattern within a margin of paper.
#pragma once

#include "card_shape.h"

#include <vector>

namespace varnello::render {

struct BackGroup {
    const char* name;
    std::vector<int> numbers;
};

// All backs, in groups as a person chooses them.
std::vector<BackGroup> BackGroups();

// The back with this number; the default back for a number that has none.
void DrawBack(QPainter& painter, const CardShape& shape, int number);

}  // namespace varnello::render
