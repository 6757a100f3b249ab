#include "engine/rules/stock.h"

namespace varnello {

void DealRow(const Playfield& field) {
    cArray& array = field.array;
    const MultiStep step(field);
    for (int pile = 0; pile < field.games.Piles(Cell::Home); ++pile) {
        if (array.GetTop(Cell::Stock, 0) < 0) continue;
        array.MoveCard({.PicID = array.GetTopPicID(Cell::Stock, 0),
                        .To = {Cell::Home, pile, array.GetTop(Cell::Home, pile) + 1},
                        .tMod = MoveKind::FromStock,
                        .Speed = 5});
    }
}

void Redeal(const Playfield& field) {
    cArray& array = field.array;
    const MultiStep step(field);
    for (int left = array.GetTop(Cell::Waste, 0); left >= 0; --left) {
        array.MoveCard({.PicID = array.GetTopPicID(Cell::Waste, 0),
                        .To = {Cell::Stock, 0, array.GetTop(Cell::Stock, 0) + 1},
                        .tMod = MoveKind::ToStock,
                        .Speed = 2,
                        .DFace = FaceMode::Closed});
    }
}

}  // namespace varnello
