#pragma once

#include <cstdint>

#include "engine/flow/engine.h"

namespace varnello::findwin {

/// Where a dropped card's left top corner comes to lie, in twips on the table.
struct Aim {
    int left;
    int top;
};

/// An aim that puts a dropped card's centre on the target and, where that is possible, on nothing
/// that is asked before it.
Aim AimAt(const Engine& engine, const Place& target);

}  // namespace varnello::findwin
