#include "fixture.h"

// Deals by number, favorites, and the rules for players' names and files.
namespace varnello::test {
namespace {

class Choosing : public EngineTest {
protected:
    std::filesystem::path File(const std::string& name) { return engine.data.AppDir() / name; }
    cData& data = engine.data;
};

TEST_F(Choosing, TakesNumbersStrictlyInsideTheRange) {
    const std::string digits400(400, '9');
    const struct {
        int range;
        std::string text;
        bool accepted;
    } cases[] = {
        {5, "99998", true},
        {5, "99999", false},
        {5, "0", false},
        {5, "-1", false},
        {5, "", false},
        {5, " 12.5 ", true},
        {5, "1e4", true},
        {5, "1e5", false},
        {15, "999999999999999", true},
        {15, "1000000000000000", true},
        {15, "1e16", false},
        {15, digits400, false},
        {15, "1e999999999999999999999", false},
        {15, "1e-999", false},
        {15, "1e-40", true},
        {15, "0x10", false},
        {15, "1,5", false},
        {15, "inf", false},
        {15, "nan", false},
        {15, "\u0661\u0662", false},
        {15, "12.", false},
        {15, ".5", false},
        {1, "8.9", true},
        {1, "9", false},
    };
    for (const auto& c : cases) {
        data.Set(keys::RangeIndex, I16(c.range));
        EXPECT_EQ(engine.IsChoosable(c.text), c.accepted) << c.range << ": " << c.text;
    }
    data.Set(keys::RangeIndex, 5);
    EXPECT_EQ(engine.RangeText(), "0 and 99,999");
    data.Set(keys::RangeIndex, 1);
    EXPECT_EQ(engine.RangeText(), "0 and 9");
}

TEST_F(Choosing, HandsTheTextOnAsItStands) {
    EXPECT_TRUE(engine.ChooseNumber("Freecell", " 1.50e1 "));
    EXPECT_EQ(data.CurGNo.Shown(), " 1.50e1 ");
    const std::string deal = Board();
    engine.CloseGame();
    EXPECT_NE(ReadFile(File("Player1.sre")).find(",\"Freecell\",\" 1.50e1 \","), std::string::npos);
    Start("Freecell", 15);
    EXPECT_EQ(Board().substr(Board().find('\n')), deal.substr(deal.find('\n')));
    Heard();
    EXPECT_FALSE(engine.ChooseNumber("Freecell", "abc"));
    EXPECT_EQ(Heard(), "message: Please enter a number between 0 and 999,999,999,999,999\n");
    EXPECT_EQ(data.CurGNo.Shown(), "15");
}

TEST_F(Choosing, FavoritesKeepTheirKindAndOrder) {
    engine.AddFavorite();  // no game, so nothing
    EXPECT_FALSE(std::filesystem::exists(File("fav.dat")));
    Start("Avenue", 42);
    engine.AddFavorite();
    engine.AddFavorite();
    engine.ChooseNumber("Avenue", "007");
    engine.AddFavorite();
    EXPECT_EQ(ReadFile(File("fav.dat")),
              "\"Avenue\",42\r\n\"Avenue\",42\r\n\"Avenue\",\"007\"\r\n");
    EXPECT_EQ(engine.favorites.FavTop(), 0) << "an open list stays as it is";
    engine.favorites.OpenFav();
    EXPECT_EQ(engine.favorites.NumbersOf("Avenue"), (std::vector<std::string>{"42", "42", "007"}));
    EXPECT_TRUE(engine.favorites.GetFav(3).GameNo.IsText());
    EXPECT_FALSE(engine.favorites.GetFav(1).GameNo.IsText());
    engine.favorites.ClearFav();
    EXPECT_EQ(engine.favorites.FavTop(), 3);
    engine.favorites.OpenFav();
    EXPECT_EQ(engine.favorites.FavTop(), 0);
    engine.favorites.ClearFav();
}

TEST_F(Choosing, DamagedFavoritesAreSkippedAndTheCountHasALimit) {
    WriteFile(File("fav.dat"),
              "\"A\",1\n\"A\" ,2\nA,3\n\"A\"\n\"A\",4,5\n\"A\",x\n\n\"A\",1234567890123456\n"
              "\"A\",\"any text\"\r\n\"A\",6");
    engine.favorites.OpenFav();
    EXPECT_EQ(engine.favorites.NumbersOf("A"), (std::vector<std::string>{"1", "any text", "6"}));
    std::string many;
    for (int i = 0; i < 33000; ++i) many += "\"A\",7\r\n";
    WriteFile(File("fav.dat"), many);
    engine.favorites.OpenFav();
    EXPECT_EQ(engine.favorites.FavTop(), 32767);
}

TEST_F(Choosing, NamesThatCantBePlayersAreRefused) {
    for (const char* name : {"", "   ", "a/b", "tab\tbed", "new\nline"}) {
        EXPECT_FALSE(engine.EnterPlayer("", name));
        EXPECT_EQ(Heard(), "message: Please Enter a Valid Name\n") << name;
    }
    EXPECT_TRUE(engine.EnterPlayer("", "player1"));
    EXPECT_TRUE(engine.EnterPlayer("", "\u540d\u524d Zo\u00eb"));
    EXPECT_FALSE(engine.EnterPlayer("", "player1"));
    EXPECT_FALSE(engine.EnterPlayer("player1", "player1"));
    EXPECT_EQ(Heard(), "message: Player Exists !\nmessage: Player Exists !\n");
    EXPECT_EQ(CutPlayerName(std::string(24, 'x') + "\u00eb\u00eb"),
              std::string(24, 'x') + "\u00eb");
}

TEST_F(Choosing, ResultsFollowARename) {
    Start("Freecell");
    engine.CloseGame();
    const std::string results = ReadFile(File("Player1.sre"));
    EXPECT_TRUE(engine.EnterPlayer("Player1", "Ann"));
    EXPECT_EQ(data.CurPlayer(), "Ann");
    EXPECT_EQ(ReadFile(File("Ann.sre")), results);
    EXPECT_FALSE(std::filesystem::exists(File("Player1.sre")));
    // A file left by somebody else isn't destroyed.
    WriteFile(File("Bob.sre"), "his");
    EXPECT_FALSE(engine.EnterPlayer("Ann", "Bob"));
    EXPECT_EQ(ReadFile(File("Bob.sre")), "his");
    EXPECT_EQ(data.GetPlayer(1), "Ann");
    EXPECT_NE(Heard().find("message: Player Exists !"), std::string::npos);
}

TEST_F(Choosing, ARenameThatTheFileCantFollowIsTakenBack) {
    Start("Freecell");
    engine.CloseGame();
    Heard();
    const std::string tooLong(300, 'x');  // no file system takes it
    EXPECT_FALSE(engine.EnterPlayer("Player1", tooLong));
    EXPECT_EQ(data.GetPlayer(1), "Player1");
    EXPECT_EQ(data.CurPlayer(), "Player1");
    EXPECT_NE(Heard().find("keeps the old name"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(File("Player1.sre")));
}

TEST_F(Choosing, DeletingPacksTheListAndTakesTheResults) {
    for (const char* name : {"B", "C", "D"}) engine.EnterPlayer("", name);
    WriteFile(File("B.sre"), "x");
    EXPECT_FALSE(engine.DeletePlayer("Player1"));
    EXPECT_EQ(Heard(), "");
    dialogs.answer = false;
    EXPECT_FALSE(engine.DeletePlayer("B"));
    EXPECT_EQ(Heard(), "question: Are you sure you want to delete this player\n");
    EXPECT_TRUE(std::filesystem::exists(File("B.sre")));
    dialogs.answer = true;
    EXPECT_TRUE(engine.DeletePlayer("B"));
    EXPECT_FALSE(std::filesystem::exists(File("B.sre")));
    EXPECT_EQ(data.GetPlayer(2) + data.GetPlayer(3) + data.GetPlayer(4), "CD");
}

}  // namespace
}  // namespace varnello::test
