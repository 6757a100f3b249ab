#include "board_fixture.h"

// Press, drag and release, as far as no target is found.
namespace varnello::test {
namespace {

class Drags : public BoardTest {
protected:
    void SetUp() override {
        SelectRow(games, Freecells());
        Autoplay(false);
        for (const auto& key : {keys::SoundCardDown, keys::SoundCardUp}) data.Set(key, -1);
    }
    std::pair<double, double> Stands(PicID id) const {
        return {table.Card(id).Left, table.Card(id).Top};
    }
    using At = std::pair<double, double>;
};

TEST_F(Drags, PressAndReleaseWithoutMovingChangesNothing) {
    const PicID card = Lay(Cell::Home, 0, "KH");
    Press(card);
    gestures.MouseUp(card);
    EXPECT_EQ(Stands(card), At(1000, 3000));
    EXPECT_EQ(Tableau(0), "KH");
    EXPECT_EQ(Heard(), "sound: CardDown\nsound: CardUp\n");
    EXPECT_EQ(trans->GetTransID(), 0);
}

TEST_F(Drags, PressThatArmsNothingOnlySounds) {
    const PicID card = Lay(Cell::Home, 0, "KH 4S");
    Press(card);
    Drag(card, 5000, 5000);
    gestures.MouseUp(card);
    EXPECT_EQ(Stands(card), At(1000, 3000));
    EXPECT_EQ(Heard(), "sound: CardDown\n");
}

TEST_F(Drags, EverythingIsSilentAndStillWithoutAGame) {
    GameRow row = Freecells();
    row.Waste = WasteDef{.Piles = 1};
    row.Stock.StockNum = StockNum::Redeal;
    SelectRow(games, row);
    const PicID card = Lay(Cell::Home, 0, "KH");
    Lay(Cell::Waste, 0, "4S");
    data.GameRunning = false;
    Drop(card, 2500, 3000);
    gestures.StockClick();
    EXPECT_EQ(Stands(card), At(1000, 3000));
    EXPECT_EQ(Pile(Cell::Waste, 0), "4S");
    EXPECT_EQ(Heard(), "");
}

TEST_F(Drags, GripPointStaysUnderThePointer) {
    const PicID card = Lay(Cell::Home, 0, "KH");
    gestures.MouseDown(card, 100.5, 201.5);  // ties to even: 100 and 202
    EXPECT_EQ(gestures.DownX(), 100);
    EXPECT_EQ(gestures.DownY(), 202);
    gestures.MouseMove(card, 140, 232);
    EXPECT_EQ(Stands(card), At(1040, 3030));
    gestures.MouseMove(card, 100.5, 203.5);  // 1040.5 and 3031.5
    EXPECT_EQ(Stands(card), At(1040, 3032));
}

TEST_F(Drags, PositionsStayWithinSixteenBits) {
    const PicID card = Lay(Cell::Home, 0, "KH QS");
    Press(card);
    Drag(card, 1e9, 32700);
    EXPECT_EQ(Stands(card), At(32767, 32700));
    EXPECT_EQ(Stands(I16(card + 1)), At(32767, 32767));
    Drag(card, -1e9, -1e9);
    EXPECT_EQ(Stands(card), At(-32768, -32768));
}

TEST_F(Drags, CarriedCardsFanDown) {
    const PicID king = Lay(Cell::Home, 0, "KH QS JH");
    Press(king);
    Drag(king, 5000, 8000);
    EXPECT_EQ(Stands(king), At(5000, 8000));
    EXPECT_EQ(Stands(I16(king + 1)), At(5000, 8250));
    EXPECT_EQ(Stands(I16(king + 2)), At(5000, 8500));
    EXPECT_EQ(Tableau(0), "KH QS JH") << "the board doesn't change before the drop";
    gestures.MouseUp(king);
    EXPECT_EQ(Stands(king), At(1000, 3000));
    EXPECT_EQ(Stands(I16(king + 2)), At(1000, 3500));
}

TEST_F(Drags, CarriedCardsFanRightWherePilesDo) {
    for (const PileOrder order : {PileOrder::RightRows, PileOrder::RightColumns}) {
        GameRow row = Freecells();
        row.Home.PileOrder = order;
        SelectRow(games, row);
        const PicID king = Lay(Cell::Home, order == PileOrder::RightRows ? 0 : 1, "KH QS JH");
        Press(king);
        Drag(king, 15000, 10000);
        EXPECT_EQ(Stands(I16(king + 1)), At(15180, 10000));
        EXPECT_EQ(Stands(I16(king + 2)), At(15360, 10000));
        gestures.MouseUp(king);
    }
}

TEST_F(Drags, MovedCardComesToTheFront) {
    const PicID card = Lay(Cell::Home, 0, "KH");
    Lay(Cell::Home, 1, "4S");
    Press(card);
    Drag(card, 5000, 8000);
    EXPECT_EQ(table.VisibleCards().back(), card);
}

TEST_F(Drags, NewPressForgetsTheOldOne) {
    const PicID king = Lay(Cell::Home, 0, "KH QS");
    const PicID below = Lay(Cell::Home, 1, "4S 9C");
    Press(king);
    Press(below);
    EXPECT_FALSE(gestures.Dragging());
    gestures.MouseUp(below);
    EXPECT_EQ(Heard(), "sound: CardDown\nsound: CardDown\n");
}

}  // namespace
}  // namespace varnello::test
