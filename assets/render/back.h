// The backs of the deck, each a pattern within a margin of paper.
#pragma once

#include "card_shape.h"

#include <vector>

namespace varnello::render {

// The numbers of all backs; the default is 531.
std::vector<int> BackNumbers();

void DrawBack(QPainter& painter, const CardShape& shape, int number);

}  // namespace varnello::render
