#include "state.h"

#include <algorithm>

namespace varnello::findwin {
namespace {

std::uint64_t Mix(std::uint64_t value) {
    value ^= value >> 32;
    value *= 0xD6E8FEB86659FD93;
    value ^= value >> 32;
    value *= 0xD6E8FEB86659FD93;
    return value ^ (value >> 32);
}

std::uint64_t PileHash(std::span<const Kind> pile, std::uint64_t seed) {
    for (const Kind kind : pile) seed = (seed + kind + 1) * 0x9E3779B97F4A7C15;
    return Mix(seed);
}

}  // namespace

void State::Append(int pile, Kind kind) {
    cards_[static_cast<std::size_t>(End(kMaxPiles - 1))] = kind;
    for (int i = pile; i < kMaxPiles; ++i) ++ends_[static_cast<std::size_t>(i)];
}

void State::Transfer(int from, int to, int count) {
    const auto cards = cards_.begin();
    if (from < to) {
        std::rotate(cards + End(from) - count, cards + End(from), cards + End(to));
        for (int i = from; i < to; ++i) {
            ends_[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(End(i) - count);
        }
    } else {
        std::rotate(cards + End(to), cards + End(from) - count, cards + End(from));
        for (int i = to; i < from; ++i) {
            ends_[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(End(i) + count);
        }
    }
}

std::uint64_t State::Hash(const PileMap& map) const {
    // A sum doesn't see the order of the piles. Of the foundations heights and tops are enough. The
    // stock is what the rest leaves over.
    std::uint64_t hash = PileHash(Pile(map.Waste()), 4);
    for (int pile = 0; pile < map.homes; ++pile) hash += PileHash(Pile(pile), 1);
    for (int i = 0; i < map.reserves; ++i) hash += PileHash(Pile(map.Res(i)), 2);
    for (int i = 0; map.goalsDiffer && i < map.goals; ++i) {
        const int pile = map.Goal(i);
        const auto size = static_cast<std::uint64_t>(Size(pile));
        hash += Mix(size * 64 + (size == 0 ? 0 : Top(pile)) + 3);
    }
    return hash;
}

}  // namespace varnello::findwin
