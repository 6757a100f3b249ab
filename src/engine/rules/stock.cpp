#include "engine/rules/stock.h"

#include "engine/common/rounding.h"

namespace varnello {

void DealRow(const Playfield& field) {
    cArray& array = field.array;
    const std::uint64_t serial = array.Serial();
    const MultiStep step(field);
    for (std::int16_t pile = 0; pile < field.games.Piles(Cell::Home); ++pile) {
        if (array.Serial() != serial) return;
        if (array.GetTop(Cell::Stock, 0) < 0) continue;
        const Place to{Cell::Home, pile, Saturate16(array.GetTop(Cell::Home, pile) + 1)};
        array.MoveCard(array.GetTopPicID(Cell::Stock, 0), to, MoveKind::FromStock, 5, 0,
                       FaceMode::Open);
    }
}

void Redeal(const Playfield& field) {
    cArray& array = field.array;
    const std::uint64_t serial = array.Serial();
    const MultiStep step(field);
    for (int left = array.GetTop(Cell::Waste, 0); left >= 0; --left) {
        if (array.Serial() != serial) return;
        const Place to{Cell::Stock, 0, Saturate16(array.GetTop(Cell::Stock, 0) + 1)};
        array.MoveCard(array.GetTopPicID(Cell::Waste, 0), to, MoveKind::ToStock, 2, 0,
                       FaceMode::Closed);
    }
}

}  // namespace varnello
