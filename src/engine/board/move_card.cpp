#include <cmath>

#include "engine/board/board.h"
#include "engine/common/rounding.h"

namespace varnello {

void cArray::MoveCard(PicID id, Place to, MoveKind tMod, std::int16_t Speed, std::int16_t mCards,
                      FaceMode DFace) {
    const bool fullFoundation = to.Cell == Cell::Goal && GetTop(Cell::Goal, to.Pile) == kKing &&
                                games_.Tag() != Tag::Spider;
    if (fullFoundation) return;

    const Place from = table_.Card(id).Loc;
    const std::uint64_t serial = serial_;

    // A closed card that comes free opens at once, before the card on it has flown away.
    if (tMod != MoveKind::UndoRedo && from.Cell == Cell::Home && from.Pos >= 1) {
        KesCard& below = table_.Card(GetPicID(Cell::Home, from.Pile, from.Pos - 1));
        if (below.FaceMode == FaceMode::Closed) {
            tMod = MoveKind::Uncover;
            below.FaceMode = FaceMode::Open;
        }
    }

    const CardMove move{id, to, tMod, Speed, mCards, DFace};
    follower_.MoveBegins(move);
    if (tMod != MoveKind::Deal && tMod != MoveKind::UndoRedo) follower_.SaveTrans(move);

    PlaceCard(id, to, tMod, Speed, DFace);
    for (std::int16_t i = 1; i <= mCards; ++i) {
        const PicID carried = GetPicID(from.Cell, from.Pile, from.Pos + i);
        const Place next{to.Cell, to.Pile, Saturate16(to.Pos + i)};
        PlaceCard(carried, next, tMod, 0, DFace);
    }

    // Only now: nothing during the flight sees the new tops.
    TopIndex(from.Cell, from.Pile) = Saturate16(from.Pos - 1);
    TopIndex(to.Cell, to.Pile) = Saturate16(to.Pos + mCards);

    const bool setsOffAutoplay =
        tMod != MoveKind::Deal && tMod != MoveKind::UndoRedo && tMod != MoveKind::ToStock;
    if (setsOffAutoplay) follower_.AutoPlay();

    // Last of all: when it returns, a whole new game may lie on the table.
    if (serial_ == serial && follower_.GameRunning()) follower_.CheckWon();
}

void cArray::PlaceCard(PicID id, Place to, MoveKind tMod, std::int16_t Speed, FaceMode DFace) {
    KesCard& card = table_.Card(id);
    const double x = GetCordX(to);
    const double y = GetCordY(to);
    table_.BringToFront(id);
    card.Visible = true;
    if (Speed >= 1 && motion_) Fly(card, x, y, Speed);
    card.MoveTo(x, y);
    if (motion_) surface_.Repaint();

    card.FaceMode = DFace == FaceMode::Open ? FaceMode::Open : FaceMode::Closed;
    if (tMod != MoveKind::Deal) CardGrid(card.Loc.Cell, card.Loc.Pile, card.Loc.Pos) = kNoCard;
    card.Loc = to;
    CardGrid(to.Cell, to.Pile, to.Pos) = id;
    if (tMod == MoveKind::Deal && motion_) surface_.Yield();
}

void cArray::Fly(KesCard& card, double x, double y, int steps) {
    const double left = card.Left;
    const double top = card.Top;
    for (int i = 1; i <= steps; ++i) {
        card.MoveTo(left + (x - left) * i / steps, top + (y - top) * i / steps);
        surface_.RepaintFlight();
    }
}

}  // namespace varnello
