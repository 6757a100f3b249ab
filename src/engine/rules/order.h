#pragma once

#include "engine/board/card.h"
#include "engine/definitions/codes.h"

namespace varnello {

/// Whether `moved` may lie on `target`. `AK`: ranks go round, so that an Ace follows a King and a
/// King lies below an Ace. The faces aren't looked at.
bool FitsOrder(const KesCard& target, const KesCard& moved, OrderCode order, bool AK);

}  // namespace varnello
