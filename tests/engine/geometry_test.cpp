#include "hand_board.h"

// Where card places lie on the table, in twips.
namespace varnello::test {
namespace {

cGames Game(std::string_view name) {
    cGames games;
    SelectGame(games, name);
    return games;
}

TEST(Geometry, RunsRowsAndCardsTheirOwnWay) {
    const struct {
        const char* game;
        Place place;
        int x, y;
    } cases[] = {
        // Boards are centred, halves go to even: this one begins at 2547.5.
        {"Cone Freecell", {Cell::Home, 0, 0}, 2548, 1840},
        {"Cone Freecell", {Cell::Home, 1, 0}, 3712, 1840},
        {"Freecell", {Cell::Home, 7, 2}, 3130 + 7 * 1165, 200 + 1640 + 2 * 250},
        {"Freecell", {Cell::Res, 0, 0}, 2980, 200},
        // The place below the first card of an empty pile.
        {"Freecell", {Cell::Home, 0, -1}, 3130, 200 + 1640 - 250},
        {"Avenue", {Cell::Home, 0, -1}, 2530 + 1265 - 180, 700},
        // Down, further rows below.
        {"Carnival", {Cell::Home, 6, 3}, 2830 + 1465, 200 + 4000 + 3 * 250},
        // Down, the second row goes on to the right.
        {"SeaTowers", {Cell::Goal, 1, 0}, 1965 + 1165, 200},
        {"SeaTowers", {Cell::Goal, 3, 5}, 1965 + 9320 + 1165, 200},
        // Rows of piles, cards to the right; the board begins at 2092.5.
        {"Fancell", {Cell::Home, 2, 1}, 2092 + 2 * 3765 + 180, 50 + 1540},
        {"Fancell", {Cell::Home, 3, 0}, 2092, 50 + 1540 + 1490},
        // Columns of piles, cards to the right.
        {"Avenue", {Cell::Home, 3, 0}, 2530 + 1265, 200 + 500 + 3 * 1540},
        {"Avenue", {Cell::Home, 4, 2}, 2530 + 1265 + 5210 + 2 * 180, 200 + 500},
        // All but a foundation's first card hang lower.
        {"Stalactites", {Cell::Goal, 0, 0}, 7790, 200},
        {"Stalactites", {Cell::Goal, 0, 1}, 7790, 450},
        {"Stalactites", {Cell::Goal, 0, 12}, 7790, 450},
    };
    for (const auto& c : cases) {
        const cGames games = Game(c.game);
        EXPECT_EQ(games.GetCordX(c.place, 0), c.x) << c.game << ' ' << c.place.Pile;
        EXPECT_EQ(games.GetCordY(c.place, 0), c.y) << c.game << ' ' << c.place.Pile;
    }
}

TEST(Geometry, ClosedCardsLieCloserBelowOrInRows) {
    const struct {
        PileOrder order;
        int x, y;
    } cases[] = {{PileOrder::Down, 2500, 3000 + 3 * 60 + 250},
                 {PileOrder::RightRows, 2500 + 3 * 60 + 250, 3000},
                 {PileOrder::RightColumns, 1000 + 4 * 250, 4500},
                 {PileOrder::DownOneLine, 2500, 3000 + 4 * 250}};
    for (const auto& c : cases) {
        GameRow row = Freecells();
        row.Home.PileOrder = c.order;
        HandBoard board(row, "t1 -2H -3H -4H 5H 6H");
        EXPECT_EQ(board.Card("6H").Left, c.x);
        EXPECT_EQ(board.Card("6H").Top, c.y);
    }
    HandBoard board(Freecells(), "t1 -2H -3H");
    EXPECT_EQ(board.Card("3H").Top, 3060);
    board.Card("3H").FaceMode = FaceMode::Open;
    EXPECT_EQ(board.array.GetCordY({Cell::Home, 1, 2}), 3000 + 60 + 250);
}

}  // namespace
}  // namespace varnello::test
