#include "engine/rules/stacks.h"

#include "engine/rules/order.h"

namespace varnello {

bool IsRun(const Playfield& field, PicID id, int n) {
    const Place bottom = field.table.Card(id).Loc;
    const auto card = [&](int pos) -> const KesCard& {
        return field.table.Card(field.array.GetPicID(Cell::Home, bottom.Pile, pos));
    };
    for (int pos = bottom.Pos; pos < bottom.Pos + n; ++pos) {
        if (!FitsOrder(card(pos), card(pos + 1), field.games.MultiOrder(),
                       field.games.AK(Cell::Home))) {
            return false;
        }
    }
    return true;
}

int EmptyPiles(const Playfield& field, Cell cell) {
    int empty = 0;
    for (int pile = 0; pile < field.games.Piles(cell); ++pile) {
        if (field.array.GetTop(cell, pile) == -1) ++empty;
    }
    return empty;
}

int MaxExtraCards(const Playfield& field) {
    const int emptyPiles = EmptyPiles(field, Cell::Home);
    const int freeCells = EmptyPiles(field, Cell::Res);
    return (freeCells + 1) * emptyPiles + freeCells;
}

}  // namespace varnello
