#include "hand_board.h"

// The record of a game's moves; undo and redo.
namespace varnello::test {
namespace {

class Log : public ::testing::Test, protected HandBoard {
protected:
    Log() : HandBoard(Freecells(), "t3 9C, r0 9H") {}
    /// Moves a card to and fro between two reserves.
    void Shuttle(int moves) {
        for (int i = 0; i < moves; ++i) {
            array.MoveCard({.PicID = Id("9H"), .To = {Cell::Res, 1 - Card("9H").Loc.Pile, 0}});
        }
        out = {};
    }
};

TEST_F(Log, GrowsBeyondTheCounterWithoutLosingARecord) {
    Shuttle(32767 + 3);
    for (const int i : {1, 99, 100, 101, 200, 32767}) {
        EXPECT_EQ(trans.Record(I16(i)).From(), (Place{Cell::Res, 1 - i % 2, 0})) << i;
    }
    EXPECT_EQ(trans.GetTransID(), 32767);
    EXPECT_EQ(trans.TransTop(), 32767);
    Do("undo undo undo undo");
    EXPECT_EQ(trans.GetTransID(), 32766);
    Do("undoall");
    EXPECT_EQ(trans.GetTransID(), 0);
    EXPECT_EQ(Text(), "t3 9C, r0 9H");
    Do("redoall");
    EXPECT_FALSE(trans.RedoPossible());
    EXPECT_EQ(Text(), "t3 9C, r0 9H");
}

}  // namespace
}  // namespace varnello::test
