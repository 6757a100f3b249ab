#include "aim.h"

#include <cstdlib>

namespace varnello::findwin {
namespace {

// The aims that are tried lie on a grid around the place itself, all of them within it.
constexpr int kStep = 120;  // twips
constexpr int kStepsAside = 4;
constexpr int kStepsUp = 5;

/// Whether a card's centre lies on the place or at its very edge.
bool Touches(const Engine& engine, const Aim& aim, const Place& place) {
    const int dx = aim.left - engine.array().GetCordX(place);
    const int dy = aim.top - engine.array().GetCordY(place);
    return std::abs(dx) <= kCardWidth / 2 + 1 && std::abs(dy) <= kCardHeight / 2;
}

/// The tableau is asked before the reserves, these before the foundations, each from pile 0 up.
bool TouchesEarlierPlace(const Engine& engine, const Aim& aim, const Place& target) {
    for (const Cell cell : {Cell::Home, Cell::Res, Cell::Goal}) {
        for (int pile = 0; pile < engine.games().Piles(cell); ++pile) {
            if (cell == target.Cell && pile == target.Pile) return false;
            const int pos = cell == Cell::Home ? engine.array().GetTop(cell, pile) : 0;
            if (Touches(engine, aim, {cell, pile, pos})) return true;
        }
    }
    return false;
}

}  // namespace

Aim AimAt(const Engine& engine, const Place& target) {
    const Aim straight{engine.array().GetCordX(target), engine.array().GetCordY(target)};
    if (!TouchesEarlierPlace(engine, straight, target)) return straight;
    for (int up = -kStepsUp; up <= kStepsUp; ++up) {
        for (int aside = -kStepsAside; aside <= kStepsAside; ++aside) {
            const Aim aim{straight.left + aside * kStep, straight.top - up * kStep};
            if (!TouchesEarlierPlace(engine, aim, target)) return aim;
        }
    }
    return straight;
}

}  // namespace varnello::findwin
