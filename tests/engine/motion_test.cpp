#include "board_fixture.h"

// The one door through which a card changes its place.
namespace varnello::test {
namespace {

class Motion : public BoardTest {
protected:
    void SetUp() override {
        SelectRow(games, Freecells());
        Autoplay(false);
    }
    void Move(PicID id, Cell cell, int pile, int pos, MoveKind kind, int speed = 0, int carried = 0,
              FaceMode face = FaceMode::Open) {
        array.MoveCard(id, {cell, I16(pile), I16(pos)}, kind, I16(speed), I16(carried), face);
    }
};

TEST_F(Motion, RepaintsOncePerStepAndOnceMore) {
    const PicID card = Lay(Cell::Home, 0, "QH JS TH");
    surface.repaints = 0;
    Move(card, Cell::Home, 1, 0, MoveKind::Play, 3, 2);
    EXPECT_EQ(surface.flightSteps, 3);
    EXPECT_EQ(surface.repaints, 3) << "one for each card";
    Move(card, Cell::Res, 0, 0, MoveKind::Play, 0);
    Move(card, Cell::Res, 1, 0, MoveKind::Play, -1);
    EXPECT_EQ(surface.flightSteps, 3);
}

TEST_F(Motion, FliesInEqualStepsFromWhereTheCardStands) {
    const PicID card = Lay(Cell::Home, 0, "QH");
    std::vector<std::pair<double, double>> seen;
    surface.onFlight = [&] { seen.emplace_back(table.Card(card).Left, table.Card(card).Top); };
    table.Card(card).MoveTo(700, 1600);
    Move(card, Cell::Res, 0, 0, MoveKind::Play, 4);
    using Seen = std::vector<std::pair<double, double>>;
    EXPECT_EQ(seen, (Seen{{775, 1200}, {850, 800}, {925, 400}, {1000, 0}}));
}

TEST_F(Motion, OpensTheClosedCardBelowAndSaysSo) {
    for (const MoveKind kind : {MoveKind::Play, MoveKind::FromStock}) {
        const PicID below = Lay(Cell::Home, 0, "-4C QH");
        Move(I16(below + 1), Cell::Res, 0, 0, kind);
        EXPECT_EQ(table.Card(below).FaceMode, FaceMode::Open);
        EXPECT_EQ(trans->Record(trans->TransTop()).MoveKind, MoveKind::Uncover);
    }
}

TEST_F(Motion, OpensNothingOutsideTheTableauOrBelowTheBottom) {
    const PicID waste = Lay(Cell::Waste, 0, "-4C QH");
    Move(I16(waste + 1), Cell::Res, 0, 0, MoveKind::Play);
    EXPECT_EQ(table.Card(waste).FaceMode, FaceMode::Closed);
    const PicID only = Lay(Cell::Home, 2, "-5C");
    Move(only, Cell::Res, 1, 0, MoveKind::Play);
    EXPECT_EQ(array.GetTop(Cell::Home, 2), -1);
    EXPECT_EQ(trans->Record(2).MoveKind, MoveKind::Play);
}

TEST_F(Motion, GivesEveryCardTheFaceItIsTold) {
    const PicID card = Lay(Cell::Home, 0, "QH -JS");
    Move(card, Cell::Home, 1, 0, MoveKind::Play, 0, 1, FaceMode::Open);
    EXPECT_EQ(Tableau(1), "QH JS");
    Move(card, Cell::Home, 2, 0, MoveKind::Play, 0, 1, FaceMode::Closed);
    EXPECT_EQ(Tableau(2), "-QH -JS");
}

TEST_F(Motion, FullFoundationRefusesInSilence) {
    Lay(Cell::Goal, 0, "AH 2H 3H 4H 5H 6H 7H 8H 9H TH JH QH KH");
    const PicID card = Lay(Cell::Home, 0, "-4C 2C");
    Move(I16(card + 1), Cell::Goal, 0, 13, MoveKind::Play, 3);
    EXPECT_EQ(Tableau(0), "-4C 2C");
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(trans->GetTransID(), 0);
    GameRow runs = Freecells();
    runs.Ext.Tag = Tag::Spider;
    SelectRow(games, runs);
    Move(I16(card + 1), Cell::Goal, 0, 13, MoveKind::Play, 3);
    EXPECT_EQ(array.GetTop(Cell::Goal, 0), 13) << "but not in the games of whole runs";
}

TEST_F(Motion, OnlyPlayClearsThePlaceLeft) {
    const PicID card = Lay(Cell::Home, 0, "QH");
    Move(card, Cell::Home, 1, 0, MoveKind::Deal);
    EXPECT_EQ(array.GetPicID(Cell::Home, 0, 0), card);
    EXPECT_EQ(array.GetTop(Cell::Home, 0), -1);
    Move(card, Cell::Res, 0, 0, MoveKind::Play);
    EXPECT_EQ(array.GetPicID(Cell::Home, 1, 0), kNoCard);
    Move(card, Cell::Home, 0, 0, MoveKind::UndoRedo);
    EXPECT_EQ(array.GetPicID(Cell::Res, 0, 0), kNoCard);
}

TEST_F(Motion, LogsAllKindsButUndoAndDeal) {
    const PicID card = Lay(Cell::Home, 0, "QH");
    int pile = 0;
    for (const MoveKind kind : {MoveKind::Play, MoveKind::FromStock, MoveKind::ToStock,
                                MoveKind::UndoRedo, MoveKind::Deal}) {
        Move(card, Cell::Home, ++pile, 0, kind);
    }
    EXPECT_EQ(trans->GetTransID(), 3);
}

TEST_F(Motion, TestsForTheWinAfterEveryKindWhileAGameRuns) {
    GameRow row = Freecells();
    row.Ext.TotalCards = 1;
    SelectRow(games, row);
    for (const MoveKind kind : {MoveKind::Play, MoveKind::FromStock, MoveKind::ToStock,
                                MoveKind::UndoRedo, MoveKind::Deal}) {
        array.Clear();
        const PicID card = Lay(Cell::Home, 0, "9H");
        wins = 0;
        Move(card, Cell::Goal, 0, 0, kind);
        EXPECT_EQ(wins, 1) << static_cast<int>(kind);
        data.GameRunning = false;
        Move(card, Cell::Goal, 1, 0, kind);
        data.GameRunning = true;
        EXPECT_EQ(wins, 1) << static_cast<int>(kind);
    }
}

TEST_F(Motion, ArrivingCardsLieInFront) {
    const PicID lower = Lay(Cell::Home, 0, "QH JS");
    Lay(Cell::Home, 1, "KC");
    Move(lower, Cell::Home, 1, 1, MoveKind::Play, 0, 1);
    const auto front = table.VisibleCards();
    EXPECT_EQ(front.back(), lower + 1);
    EXPECT_EQ(front[front.size() - 2], lower);
}

}  // namespace
}  // namespace varnello::test
