#include "hand_board.h"

// The one door through which a card changes its place, and what lies in front.
namespace varnello::test {
namespace {

constexpr MoveKind kKinds[] = {MoveKind::Play, MoveKind::FromStock, MoveKind::ToStock,
                               MoveKind::UndoRedo, MoveKind::Deal};

void Move(HandBoard& board, std::string_view card, Place to, MoveKind kind = MoveKind::Play,
          int speed = 0, int carried = 0) {
    board.array.MoveCard({board.Id(card), to, kind, speed, carried, FaceMode::Open});
}

TEST(Motion, FirstCardFliesFromWhereItStandsAndTheOthersJump) {
    HandBoard board(Freecells(), "t0 QH JS TH");
    board.Press("QH");
    board.Drag("QH", 700, 1600);
    Move(board, "QH", {Cell::Res, 0, 0}, MoveKind::Play, 4, 2);
    using Flights = std::vector<FollowingSurface::Flight>;
    EXPECT_EQ(board.surface.flights, (Flights{{0, 700, 1600, 1000, 0, 4, MoveKind::Play}}));
    Move(board, "JS", {Cell::Res, 1, 0}, MoveKind::Play, -1);
    EXPECT_EQ(board.surface.flights.size(), 1U);
    EXPECT_TRUE(LooksSame(board.surface.scene, board.table));
}

TEST(Motion, FullFoundationRefusesInSilence) {
    const std::string piles = "t0 -4C 2C, g0 " + Cards(kUp, "H");
    HandBoard board(Freecells(), piles);
    Move(board, "2C", {Cell::Goal, 0, 13});
    EXPECT_EQ(board.Text(), piles);
    EXPECT_EQ(board.Heard(), "");
    EXPECT_FALSE(board.trans.UndoPossible());
    GameRow runs = Freecells();
    runs.Ext.Tag = Tag::Spider;
    SelectRow(board.games, runs);
    Move(board, "2C", {Cell::Goal, 0, 13});
    EXPECT_EQ(board.array.GetTop(Cell::Goal, 0), 13) << "but not in the games of whole runs";
}

TEST(Motion, OnlyADealLeavesItsPlaceMarked) {
    HandBoard board(Freecells(), "t0 QH");
    Move(board, "QH", {Cell::Home, 1, 0}, MoveKind::Deal);
    EXPECT_EQ(board.array.GetPicID(Cell::Home, 0, 0), 0);
    Move(board, "QH", {Cell::Res, 0, 0});
    EXPECT_EQ(board.array.GetPicID(Cell::Home, 1, 0), kNoCard);
}

TEST(Motion, TestsForTheWinAfterEveryKindWhileAGameRuns) {
    GameRow row = Freecells();
    row.Ext.TotalCards = 1;
    for (const MoveKind kind : kKinds) {
        HandBoard board(row, "t0 9H");
        Move(board, "9H", {Cell::Goal, 0, 0}, kind);
        EXPECT_EQ(board.wins, 1) << static_cast<int>(kind);
        EXPECT_EQ(board.trans.UndoPossible(), kind != MoveKind::Deal && kind != MoveKind::UndoRedo);
        board.data.GameRunning = false;
        Move(board, "9H", {Cell::Goal, 1, 0}, kind);
        EXPECT_EQ(board.wins, 1) << static_cast<int>(kind);
    }
}

TEST(Motion, ArrivingCardsLieInFront) {
    HandBoard board(Freecells(), "t0 QH JS, t1 KC");
    Move(board, "QH", {Cell::Home, 1, 1}, MoveKind::Play, 0, 1);
    EXPECT_EQ(board.table.VisibleCards(), (std::vector<PicID>{2, 0, 1}));
    // The mouse finds the frontmost card; a card's right and lower edges lie outside it.
    const KesCard& jack = board.Card("JS");
    EXPECT_EQ(board.table.CardAt(jack.Left, jack.Top), 1);
    EXPECT_EQ(board.table.CardAt(jack.Left, jack.Top - 1), 0);
    EXPECT_EQ(board.table.CardAt(jack.Left + 1064, jack.Top + 1439), 1);
    EXPECT_EQ(board.table.CardAt(jack.Left + 1065, jack.Top), kNoCard);
    EXPECT_EQ(board.table.CardAt(jack.Left, jack.Top + 1440), kNoCard);
}

}  // namespace
}  // namespace varnello::test
