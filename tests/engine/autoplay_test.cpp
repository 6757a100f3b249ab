#include "board_fixture.h"

// Cards that go up by themselves.
namespace varnello::test {
namespace {

std::string RunOf(char suit, char otherSuit = 0, const char* pack = "") {
    std::string text;
    bool odd = false;
    for (const char rank : std::string_view("KQJT98765432A")) {
        text += (text.empty() ? "" : " ") + std::string{rank, odd && otherSuit ? otherSuit : suit};
        text += pack;
        odd = !odd;
    }
    return text;
}

class Autoplays : public BoardTest {
protected:
    void SetUp() override { Use(row); }
    void Use(const GameRow& changed) { SelectRow(games, changed); }
    void Pass() { varnello::AutoPlay(field); }
    std::string Goal(int pile) const { return Pile(Cell::Goal, pile); }
    GameRow row = Freecells();
};

TEST_F(Autoplays, WholePassRunsBeforeTheFirstSound) {
    Lay(Cell::Home, 2, "9C 3H 2H AH");
    Pass();
    EXPECT_EQ(Goal(0), "AH 2H 3H");
    EXPECT_EQ(Heard(),
              "move: 3 3 0 0 0 3 0 0\nmove: 2 3 0 1 0 3 0 0\nmove: 1 3 0 2 0 3 0 0\n"
              "sound: AutoPlay\nsound: AutoPlay\nsound: AutoPlay\n");
    EXPECT_EQ(trans->GetTransID(), 3);
}

TEST_F(Autoplays, PassGoesThroughTableauReserveWasteAndOpenStock) {
    row.Stock.StockType = StockType::Open;
    Use(row);
    Lay(Cell::Stock, 0, "AC");
    Lay(Cell::Waste, 0, "9C AD");
    Lay(Cell::Res, 3, "AS");
    Lay(Cell::Home, 3, "AH");
    Pass();
    EXPECT_EQ(Goal(0) + Goal(1) + Goal(2) + Goal(3), "AHASADAC");
}

TEST_F(Autoplays, EachCardSetsOffAPassFromTheStart) {
    Lay(Cell::Home, 0, "2S");
    Lay(Cell::Home, 1, "2H AS");
    Lay(Cell::Home, 2, "AH");
    Pass();
    // AS frees 2H; 2S in pile 0 goes before AH in pile 2, and AH before 2H.
    EXPECT_EQ(Goal(0), "AS 2S");
    EXPECT_EQ(Goal(1), "AH 2H");
    const std::string heard = Heard();
    EXPECT_LT(heard.find("move: 0 "), heard.find("move: 3 "));
    EXPECT_LT(heard.find("move: 3 "), heard.find("move: 1 "));
}

TEST_F(Autoplays, ClosedStockNeverGoesUp) {
    Lay(Cell::Stock, 0, "-AC");
    Pass();
    EXPECT_EQ(Goal(0), "");
}

TEST_F(Autoplays, PlayerAndGameMayForbidIt) {
    Lay(Cell::Home, 0, "AH");
    Autoplay(false);
    Pass();
    EXPECT_EQ(Tableau(0), "AH");
    Autoplay(true);
    row.Ext.DisAutoPlay = kTrue;
    Use(row);
    Pass();
    EXPECT_EQ(Tableau(0), "AH");
    data.Set(keys::Autoplay, 7);
    row.Ext.DisAutoPlay = 0;
    Use(row);
    Pass();
    EXPECT_EQ(Goal(0), "AH") << "any value but 0 means on";
}

TEST_F(Autoplays, AMoveSetsOffAPassAndUndoDoesNot) {
    Lay(Cell::Home, 0, "2H");
    const PicID cover = Lay(Cell::Home, 1, "AH 9C");
    DropOn(I16(cover + 1), Cell::Res, 0);
    EXPECT_EQ(Goal(0), "AH 2H");
    std::int16_t speed = 0;
    trans->Undo(speed);
    EXPECT_EQ(Goal(0), "AH");
    EXPECT_EQ(Tableau(0), "2H");
    EXPECT_EQ(trans->GetTransID(), 2) << "each card is a step of its own";
}

TEST_F(Autoplays, FoundationsMayGoRoundFromAnyBase) {
    row.Goal.AK = 1;
    Use(row);
    games.GoalBase(11);
    Lay(Cell::Home, 0, "JH TH");
    Lay(Cell::Home, 1, "AH KH QH");
    Pass();
    EXPECT_EQ(Goal(0), "QH KH AH");
    EXPECT_EQ(Tableau(0), "JH TH");
}

TEST_F(Autoplays, UpperFoundationsBuildDownInTheirFamily) {
    row.Ext.Tag = Tag::FreecellAK;
    Use(row);
    Lay(Cell::Goal, 0, "AH");
    Lay(Cell::Goal, 2, "KD");
    Lay(Cell::Home, 0, "2H");
    Lay(Cell::Home, 1, "QD");
    Pass();
    EXPECT_EQ(Goal(0) + '/' + Goal(2), "AH 2H/KD QD");
}

TEST_F(Autoplays, FullFoundationTakesNoMore) {
    row.Goal.AK = 1;
    row.Ext.TotalCards = 104;
    Use(row);
    Lay(Cell::Goal, 0, "AH 2H 3H 4H 5H 6H 7H 8H 9H TH JH QH KH");
    Lay(Cell::Home, 0, "9C AH+");
    Pass();
    EXPECT_EQ(array.GetTop(Cell::Goal, 0), 12);
    EXPECT_EQ(Tableau(0), "9C AH+");
    EXPECT_FALSE(trans->UndoPossible());
}

TEST_F(Autoplays, CardThatComesFreeIsOpened) {
    const PicID below = Lay(Cell::Home, 0, "-9C AH");
    Pass();
    EXPECT_EQ(Tableau(0), "9C");
    EXPECT_EQ(trans->Record(1).MoveKind, MoveKind::Uncover);
    std::int16_t speed = 0;
    trans->Undo(speed);
    EXPECT_EQ(table.Card(below).FaceMode, FaceMode::Closed);
    EXPECT_EQ(Tableau(0), "-9C AH");
}

class Runs : public Autoplays {
protected:
    Runs() {
        row.Ext.Tag = Tag::Spider;
        row.Ext.DisAutoPlay = kTrue;
        row.Ext.TotalCards = 104;
    }
    void SetUp() override {
        Autoplays::SetUp();
        Autoplay(false);
    }
};

TEST_F(Runs, GoUpWhateverTheSettingsSayAceFirst) {
    Lay(Cell::Home, 2, "5C " + RunOf('D'));
    Pass();
    EXPECT_EQ(Goal(2), "AD 2D 3D 4D 5D 6D 7D 8D 9D TD JD QD KD");
    EXPECT_EQ(Tableau(2), "5C");
    EXPECT_EQ(Heard().find("sound"), std::string::npos);
}

TEST_F(Runs, AreOneUndoStep) {
    Lay(Cell::Home, 2, RunOf('D'));
    Pass();
    EXPECT_EQ(trans->GetTransID(), 13);
    std::int16_t speed = 0;
    EXPECT_TRUE(trans->Undo(speed));
    EXPECT_EQ(trans->GetTransID(), 0);
    EXPECT_EQ(Tableau(2), RunOf('D'));
    EXPECT_TRUE(trans->Redo(speed));
    EXPECT_EQ(array.GetTop(Cell::Goal, 2), 12);
}

TEST_F(Runs, OpenTheCardBelow) {
    Lay(Cell::Home, 0, "-5C " + RunOf('H'));
    Pass();
    EXPECT_EQ(Tableau(0), "5C");
    EXPECT_EQ(trans->Record(12).MoveKind, MoveKind::Play);
    EXPECT_EQ(trans->Record(13).MoveKind, MoveKind::Uncover);
    std::int16_t speed = 0;
    trans->Undo(speed);
    EXPECT_EQ(Tableau(0), "-5C " + RunOf('H'));
}

TEST_F(Runs, OfBothPacksShareAFoundation) {
    row.Ext.GoalDiv = 4;
    Use(row);
    Lay(Cell::Home, 0, RunOf('S'));
    Pass();
    Lay(Cell::Home, 1, RunOf('S', 0, "+"));
    Pass();
    EXPECT_EQ(array.GetTop(Cell::Goal, 1), 25);
    EXPECT_EQ(array.TotalGoalCards(), 26);
    std::int16_t speed = 0;
    trans->Undo(speed);
    EXPECT_EQ(Tableau(1), RunOf('S', 0, "+"));
}

TEST_F(Runs, AreNotTakenBeforeTheyAreWhole) {
    const std::string hearts = RunOf('H');
    const std::string cases[] = {
        hearts + " 9C",                                      // the ace isn't on top
        hearts.substr(3),                                    // no king
        RunOf('H', 'D'),                                     // two suits
        hearts.substr(0, 6) + "TH " + hearts.substr(9),      // a gap
        hearts.substr(0, hearts.size() - 3),                 // no ace
        RunOf('H').substr(0, 6) + RunOf('C').substr(6, 32),  // the suit changes once
    };
    for (const std::string& cards : cases) {
        array.Clear();
        Lay(Cell::Home, 0, cards);
        Pass();
        EXPECT_EQ(Tableau(0), cards);
    }
}

TEST_F(Runs, FollowTheFoundationsOrder) {
    row.Goal.Order = OrderCode::UpColor;
    Use(row);
    Lay(Cell::Home, 0, RunOf('H'));
    Lay(Cell::Home, 1, RunOf('H', 'C'));
    Pass();
    EXPECT_EQ(Tableau(0), RunOf('H'));
    EXPECT_EQ(Tableau(1), "");
    EXPECT_EQ(array.GetTop(Cell::Goal, 0), 12) << "the foundation of the ace on top";
}

TEST_F(Runs, AreTakenAfterTheMoveThatCompletesThem) {
    const std::string run = RunOf('H');
    Lay(Cell::Home, 0, run.substr(0, run.size() - 3));
    row.Home.Order = OrderCode::DownAny;
    Use(row);
    DropOn(Lay(Cell::Home, 1, "AH"), Cell::Home, 0);
    EXPECT_EQ(array.GetTop(Cell::Goal, 0), 12);
    EXPECT_EQ(trans->GetTransID(), 14);
    std::int16_t speed = 0;
    trans->Undo(speed);
    EXPECT_EQ(trans->GetTransID(), 1);
    EXPECT_EQ(Tableau(0), run) << "and stays there until the next move";
}

}  // namespace
}  // namespace varnello::test
