#include "engine/definitions/geometry.h"

#include "engine/common/rounding.h"

namespace varnello {

int cGames::GetCordX(const Place& place, int ClosedCards) const {
    const TwipPoint at = CellPos(Def(place.Cell), Tag(), place, ClosedCards);
    return RoundTo16(LayoutLeft(BaseX()) + at.X);
}

int cGames::GetCordY(const Place& place, int ClosedCards) const {
    return Saturate16(CellPos(Def(place.Cell), Tag(), place, ClosedCards).Y + BaseY());
}

}  // namespace varnello
