#include "board_fixture.h"

// The record of a game's moves.
namespace varnello::test {
namespace {

class Log : public BoardTest {
protected:
    void SetUp() override {
        SelectRow(games, Freecells());
        Autoplay(false);
        card = Lay(Cell::Res, 0, "9H");
    }
    /// Moves the card to and fro between two reserves.
    void Shuttle(int moves) {
        for (int i = 0; i < moves; ++i) {
            const auto to = I16(1 - table.Card(card).Loc.Pile);
            array.MoveCard(card, {Cell::Res, to, 0}, MoveKind::Play, 0, 0, FaceMode::Open);
        }
        out = {};
    }
    bool Undo() {
        std::int16_t speed = 0;
        return trans->Undo(speed);
    }
    PicID card = 0;
};

TEST_F(Log, StartsEmpty) {
    EXPECT_EQ(trans->GetTransID(), 0);
    EXPECT_EQ(trans->TransTop(), 0);
    EXPECT_FALSE(trans->UndoPossible());
    EXPECT_FALSE(trans->RedoPossible());
}

TEST_F(Log, RecordTellsFromWhereToWhere) {
    Lay(Cell::Home, 1, "KS");
    const PicID queen = Lay(Cell::Home, 3, "2C QH JS");
    DropOn(I16(queen + 1), Cell::Home, 1);
    const TransRec& record = trans->Record(1);
    EXPECT_EQ(record.PicId, queen + 1);
    EXPECT_EQ(record.From, (Place{Cell::Home, 3, 1}));
    EXPECT_EQ(record.To, (Place{Cell::Home, 1, 1}));
    EXPECT_EQ(record.mCards, 1);
    EXPECT_EQ(record.MoveKind, MoveKind::Play);
    EXPECT_FALSE(record.InGroup);
}

TEST_F(Log, GrowsWithoutLosingARecord) {
    Shuttle(205);
    for (const int i : {1, 2, 99, 100, 101, 102, 199, 200, 201, 205}) {
        const auto from = I16(1 - i % 2);
        EXPECT_EQ(trans->Record(I16(i)).From, (Place{Cell::Res, from, 0})) << i;
        EXPECT_EQ(trans->Record(I16(i)).PicId, card) << i;
    }
    EXPECT_EQ(trans->GetTransID(), 205);
    trans->UndoAll(0);
    EXPECT_EQ(Pile(Cell::Res, 0), "9H");
    trans->RedoAll(0);
    EXPECT_EQ(Pile(Cell::Res, 1), "9H");
}

TEST_F(Log, CounterStaysAtItsLimitAndUndoGoesOn) {
    Shuttle(32767);
    EXPECT_EQ(trans->GetTransID(), 32767);
    Shuttle(3);
    EXPECT_EQ(trans->GetTransID(), 32767);
    EXPECT_EQ(trans->TransTop(), 32767);
    EXPECT_EQ(Pile(Cell::Res, 0), "9H");
    EXPECT_TRUE(Undo());
    EXPECT_EQ(trans->GetTransID(), 32767);
    EXPECT_TRUE(trans->RedoPossible());
    EXPECT_EQ(Pile(Cell::Res, 1), "9H");
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(Undo());
    EXPECT_EQ(trans->GetTransID(), 32766);
    trans->UndoAll(0);
    EXPECT_EQ(trans->GetTransID(), 0);
    EXPECT_EQ(Pile(Cell::Res, 0), "9H");
    trans->RedoAll(0);
    EXPECT_FALSE(trans->RedoPossible());
    EXPECT_EQ(Pile(Cell::Res, 0), "9H");
}

TEST_F(Log, NewMoveDropsWhatCouldBeRedone) {
    Shuttle(4);
    Undo();
    Undo();
    EXPECT_TRUE(trans->RedoPossible());
    Shuttle(1);
    EXPECT_FALSE(trans->RedoPossible());
    EXPECT_EQ(trans->TransTop(), 3);
}

TEST_F(Log, BracketJoinsItsRecords) {
    Shuttle(1);
    trans->StartMulti();
    Shuttle(3);
    trans->EndMulti();
    Shuttle(1);
    std::string groups;
    for (int i = 0; i <= 5; ++i) groups += trans->Record(I16(i)).InGroup ? '1' : '0';
    EXPECT_EQ(groups, "001100");
    Undo();
    EXPECT_EQ(trans->GetTransID(), 4);
    Undo();
    EXPECT_EQ(trans->GetTransID(), 1);
}

TEST_F(Log, InnerEndEndsTheBracket) {
    trans->StartMulti();
    Shuttle(1);
    trans->StartMulti();
    Shuttle(2);
    trans->EndMulti();
    Shuttle(2);
    trans->EndMulti();
    std::string groups;
    for (int i = 1; i <= 5; ++i) groups += trans->Record(I16(i)).InGroup ? '1' : '0';
    EXPECT_EQ(groups, "11000");
}

TEST_F(Log, EmptyBracketJoinsNothing) {
    trans->StartMulti();
    trans->EndMulti();
    EXPECT_FALSE(trans->Record(0).InGroup);
    Shuttle(2);
    trans->StartMulti();
    trans->EndMulti();
    Undo();
    EXPECT_EQ(trans->GetTransID(), 1);
}

TEST(CellWords, NameThePlaces) {
    EXPECT_EQ(ConvertCell(Cell::Home), "Tableau");
    EXPECT_EQ(ConvertCell(Cell::Stock), "Stock");
    EXPECT_EQ(ConvertCell(Cell::Waste), "Waste");
    EXPECT_EQ(ConvertCell(Cell::Goal), "Foundation");
    EXPECT_EQ(ConvertCell(Cell::Res), "Reserve");
    EXPECT_EQ(ConvertCell(static_cast<Cell>(5)), "");
}

}  // namespace
}  // namespace varnello::test
