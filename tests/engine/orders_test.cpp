#include "engine/rules/order.h"
#include "fixture.h"

// Which card may lie on which.
namespace varnello::test {
namespace {

bool Fits(int order, int target, int moved, bool AK) {
    KesCard cards[2];
    cards[0].SetValue(I16(target / 13), I16(target % 13), 0);
    cards[1].SetValue(I16(moved / 13), I16(moved % 13), 0);
    return FitsOrder(cards[0], cards[1], static_cast<OrderCode>(order), AK);
}

/// The same in other words: ranks are steps on a ladder or on a circle.
bool Expected(int order, int target, int moved, bool AK) {
    const int step = moved % 13 - target % 13;
    const bool down = step == -1 || (AK && step == 12);
    const bool up = step == 1 || (AK && step == -12);
    const bool sameSuit = target / 13 == moved / 13;
    const bool otherColor = target / 13 % 2 != moved / 13 % 2;
    switch (order) {
        case 1: return down && sameSuit;
        case 2: return up && sameSuit;
        case 3: return (down || up) && sameSuit;
        case 4: return down && otherColor;
        case 5: return up && otherColor;
        case 6: return (down || up) && otherColor;
        case 7: return down;
        case 8: return up;
        case 9: return true;
        case 12: return down || up;
        default: return false;
    }
}

TEST(Orders, HoldForAllPairsOfCards) {
    for (int order = 0; order <= 13; ++order) {
        for (int pair = 0; pair < 52 * 52; ++pair) {
            for (const bool AK : {false, true}) {
                ASSERT_EQ(Fits(order, pair / 52, pair % 52, AK),
                          Expected(order, pair / 52, pair % 52, AK))
                    << order << ' ' << pair / 52 << ' ' << pair % 52 << ' ' << AK;
            }
        }
    }
}

}  // namespace
}  // namespace varnello::test
