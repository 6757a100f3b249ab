#include "engine/board/board.h"

namespace varnello {

void cArray::MoveCard(CardMove move) {
    const Place to = move.To;
    const bool fullFoundation = to.Cell == Cell::Goal &&
                                GetTop(Cell::Goal, to.Pile) == kRanks - 1 &&
                                games_.Tag() != Tag::Spider;
    if (fullFoundation) return;

    const Place from = table_.Card(move.PicID).Loc;

    // A closed card that comes free opens at once, before the card on it flies away.
    if (move.tMod != MoveKind::UndoRedo && from.Cell == Cell::Home && from.Pos >= 1) {
        const PicID below = GetPicID(Cell::Home, from.Pile, from.Pos - 1);
        if (table_.Card(below).FaceMode == FaceMode::Closed) {
            move.tMod = MoveKind::Uncover;
            Turn(below, FaceMode::Open);
        }
    }

    follower_.MoveBegins(move);
    const bool logged = move.tMod != MoveKind::Deal && move.tMod != MoveKind::UndoRedo;
    if (logged) follower_.SaveTrans(move);

    PlaceCard(move.PicID, to, move, move.Speed);
    for (int i = 1; i <= move.mCards; ++i) {
        const PicID carried = GetPicID(from.Cell, from.Pile, from.Pos + i);
        PlaceCard(carried, {to.Cell, to.Pile, to.Pos + i}, move, 0);
    }

    TopIndex(from.Cell, from.Pile) = Narrow16(from.Pos - 1);
    TopIndex(to.Cell, to.Pile) = Narrow16(to.Pos + move.mCards);

    if (logged && move.tMod != MoveKind::ToStock) follower_.AutoPlay();
    if (follower_.Playing()) follower_.CheckWon();
}

void cArray::PlaceCard(PicID id, Place to, const CardMove& move, int Speed) {
    KesCard& card = table_.Card(id);
    table_.BringToFront(id);
    card.Visible = true;
    card.MoveTo(GetCordX(to), GetCordY(to));
    if (Speed >= 1) {
        surface_.CardFlies(id, card, Speed, move.tMod);
    } else {
        ShowCard(id);
    }
    Turn(id, move.DFace);

    if (move.tMod != MoveKind::Deal) CardGrid(card.Loc.Cell, card.Loc.Pile, card.Loc.Pos) = kNoCard;
    card.Loc = to;
    CardGrid(to.Cell, to.Pile, to.Pos) = id;
}

void cArray::Turn(PicID id, FaceMode face) {
    KesCard& card = table_.Card(id);
    if (card.FaceMode == face) return;
    card.FaceMode = face;
    ShowCard(id);
}

}  // namespace varnello
