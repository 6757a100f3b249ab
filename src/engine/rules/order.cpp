#include "engine/rules/order.h"

namespace varnello {
namespace {

enum class Ranks { None, Down, Up, Either };
enum class Suits { Same, OtherColor, Any };

struct OrderRule {
    Ranks ranks;
    Suits suits;
};

OrderRule RuleOf(OrderCode order) {
    switch (order) {
        case OrderCode::DownSuit: return {Ranks::Down, Suits::Same};
        case OrderCode::UpSuit: return {Ranks::Up, Suits::Same};
        case OrderCode::EitherSuit: return {Ranks::Either, Suits::Same};
        case OrderCode::DownColor: return {Ranks::Down, Suits::OtherColor};
        case OrderCode::UpColor: return {Ranks::Up, Suits::OtherColor};
        case OrderCode::EitherColor: return {Ranks::Either, Suits::OtherColor};
        case OrderCode::DownAny: return {Ranks::Down, Suits::Any};
        case OrderCode::UpAny: return {Ranks::Up, Suits::Any};
        case OrderCode::EitherAny: return {Ranks::Either, Suits::Any};
        case OrderCode::Nothing:
        case OrderCode::Anything: break;
    }
    return {Ranks::None, Suits::Any};
}

/// Whether `upper` is the next rank above `lower`.
bool IsNext(int lower, int upper, bool AK) {
    return upper == lower + 1 || (AK && lower == kKing && upper == kAce);
}

bool RanksFit(Ranks ranks, int target, int moved, bool AK) {
    const bool down = IsNext(moved, target, AK);
    const bool up = IsNext(target, moved, AK);
    switch (ranks) {
        case Ranks::Down: return down;
        case Ranks::Up: return up;
        case Ranks::Either: return down || up;
        case Ranks::None: break;
    }
    return false;
}

}  // namespace

bool FitsOrder(const KesCard& target, const KesCard& moved, OrderCode order, bool AK) {
    if (order == OrderCode::Anything) return true;
    const OrderRule rule = RuleOf(order);
    if (!RanksFit(rule.ranks, target.Num, moved.Num, AK)) return false;
    switch (rule.suits) {
        case Suits::Same: return moved.Suit == target.Suit;
        case Suits::OtherColor: return moved.Color() != target.Color();
        case Suits::Any: break;
    }
    return true;
}

}  // namespace varnello
