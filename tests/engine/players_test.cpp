#include "fixture.h"

// Deals by number, favorites, recent games, and the players with their names and files.
namespace varnello::test {
namespace {

class Choosing : public EngineTest {
protected:
    std::filesystem::path File(const std::string& name) { return engine.data().AppDir() / name; }
    std::string FirstPlayers() const {
        std::string list;
        for (std::int16_t slot = 1; slot <= 4; ++slot) list += engine.data().GetPlayer(slot) + '|';
        return list;
    }
    cData& data = engine.data();
};
using Players = Choosing;

TEST_F(Choosing, TakesNumbersStrictlyInsideTheRange) {
    const struct {
        int range;
        std::string text;
        bool accepted;
    } cases[] = {{5, "99998", true},
                 {5, "99999", false},
                 {5, "0", false},
                 {5, "", false},
                 {5, " 12.5 ", true},
                 {5, "1e5", false},
                 {15, "1000000000000000", true},  // tested as a 32-bit float
                 {15, "1e16", false},
                 {15, "1e-999", false},
                 {15, "1e-40", true},
                 {15, "0x10", false},
                 {1, "8.9", true}};
    for (const auto& c : cases) {
        data.Set(keys::RangeIndex, I16(c.range));
        EXPECT_EQ(engine.choosing().IsChoosable(c.text), c.accepted) << c.range << ": " << c.text;
    }
    EXPECT_EQ(engine.choosing().RangeText().English(), "0 and 9");
    data.Set(keys::RangeIndex, 3);
    EXPECT_EQ(engine.choosing().RangeText().English(), "0 and 999");
}

TEST_F(Choosing, DamagedFavoritesAreSkippedAndTheCountHasALimit) {
    engine.commands().AddFavorite();  // no game, so nothing
    EXPECT_FALSE(std::filesystem::exists(File("fav.dat")));
    WriteFile(File("fav.dat"),
              "\"A\",1\n\"A\" ,2\nA,3\n\"A\"\n\"A\",4,5\n\"A\",x\n\n\"A\",1234567890123456\n"
              "\"A\",\"any text\"\r\n\"A\",6");
    engine.favorites().OpenFav();
    EXPECT_EQ(engine.favorites().NumbersOf("A"), (std::vector<std::string>{"1", "any text", "6"}));
    Start("Penguin", 5);
    for (int added = 0; added < 2; ++added) engine.commands().AddFavorite();
    engine.choosing().ClearFavorites();
    EXPECT_EQ(engine.favorites().FavTop(), 0) << "cleared ones aren't listed";
    engine.commands().CloseGame();
    std::string many;
    for (int i = 0; i < 33000; ++i) many += "\"A\",7\r\n";
    WriteFile(File("fav.dat"), many);
    engine.favorites().OpenFav();
    EXPECT_EQ(engine.favorites().FavTop(), 32767);
}

TEST_F(Players, AreTwentyAtMostAndToldApartByCase) {
    for (int i = 2; i <= 20; ++i) {
        EXPECT_TRUE(engine.players().MayAddPlayer());
        EXPECT_TRUE(engine.players().EnterPlayer("", i == 2 ? "player1" : "P" + std::to_string(i)));
    }
    EXPECT_FALSE(engine.players().MayAddPlayer());
    EXPECT_FALSE(data.AddPlayer("P21"));
    EXPECT_EQ(data.FindPlayer("P20"), 20);
    EXPECT_EQ(data.FindPlayer("PLAYER1"), 0);
    EXPECT_EQ(data.CurPlayer(), "Player1") << "adding leaves the current one";
    data.SetPlayer(2, "", false);
    data.AddPlayer("Cyd");
    EXPECT_EQ(data.FindPlayer("Cyd"), 2) << "the first free slot";
}

TEST_F(Players, HaveNamesFitForFiles) {
    for (const char* bad : {"", "   ", "a/b", "a\\b", "a\tb", "a\nb", "\x7f", "\x01"}) {
        EXPECT_FALSE(engine.players().EnterPlayer("", bad));
        EXPECT_EQ(Heard(), "message: Please Enter a Valid Name\n") << bad;
    }
    for (const char* good : {" A ", "\u540d\u524d Zo\u00eb", "x.y", "..", "a:b"}) {
        EXPECT_TRUE(engine.players().EnterPlayer("", good)) << good;
        EXPECT_FALSE(engine.players().EnterPlayer("", good));
        EXPECT_FALSE(engine.players().EnterPlayer(good, good));
        EXPECT_EQ(Heard(), "message: Player Exists !\nmessage: Player Exists !\n");
    }
    const std::string longest = std::string(24, 'x') + "\u00eb";
    EXPECT_EQ(CutPlayerName(longest + "\u00eb"), longest);
}

TEST_F(Players, TakeTheirResultsAlong) {
    data.SetPlayer(2, "Zo\u00eb", true);
    Start("Freecell");
    engine.commands().CloseGame();
    const std::string results = ReadFile(File("Zo\u00eb.sre"));
    EXPECT_NE(results, "");
    EXPECT_TRUE(engine.players().EnterPlayer("Zo\u00eb", "Ann"));
    EXPECT_EQ(data.CurPlayer(), "Ann");
    EXPECT_EQ(ReadFile(File("Ann.sre")), results);
    EXPECT_FALSE(std::filesystem::exists(File("Zo\u00eb.sre")));
    // A file left by somebody else isn't destroyed, nor a name changed that no file can have.
    WriteFile(File("Bob.sre"), "his");
    EXPECT_FALSE(engine.players().EnterPlayer("Ann", "Bob"));
    EXPECT_EQ(ReadFile(File("Bob.sre")), "his");
    Heard();
    EXPECT_FALSE(engine.players().EnterPlayer("Ann", std::string(300, 'x')));
    EXPECT_EQ(Heard(), "message: Please Enter a Valid Name\n");
    EXPECT_EQ(data.CurPlayer() + data.GetPlayer(2), "AnnAnn");
    EXPECT_TRUE(engine.players().EnterPlayer("", "Bob")) << "a new player may find old results";
}

TEST_F(Players, WhoseNamesCanBeNoFileCountAsNoneInEditedSettings) {
    for (const char* name : {"../Ada", "/tmp/x", "  ", "a\tb"}) {
        data.SetPlayer(2, name, true);
        EXPECT_EQ(data.TotalPlayers(), 1) << name;
        engine.InitMain();
        EXPECT_EQ(data.CurPlayer(), "Player1") << name;
        EXPECT_TRUE(data.AddPlayer("Ada"));
        EXPECT_EQ(data.GetPlayer(2), "Ada") << "its slot is free";
    }
}

TEST_F(Players, HaveNamesThatCanBeSeen) {
    const std::pair<const char*, bool> names[] = {
        {"Ann", true},          {"Zo\u00eb", true},    {"a & b", true},
        {"<h1>Bob", true},      {"[*]", true},         {"%1", true},
        {"\u738b\u4e94", true}, {"a\u00a0b", true},    {"", false},
        {" ", false},           {"\u00a0", false},     {"\u2003\u3000", false},
        {"a\u200bb", false},    {"\u202egnaw", false}, {"a\u0007", false},
        {"a\u0085", false},     {"\xff", false},       {"\xc3", false},
        {"a/b", false},         {"\u3164", false},     {"\U000E0041", false}};
    for (const auto& [name, fits] : names) EXPECT_EQ(IsNewPlayerName(name), fits) << name;
}

TEST_F(Players, WhatAKillInterruptedIsMendedAtTheNextStart) {
    const std::string games = "\"1/1/2026 1:00:00 PM\",\"Freecell\",1,1,1,1,1\r\n";
    const auto next = [&] {
        Engine{{store, clock, surface, sounds, messages, data.AppDir()}}.InitMain();
    };
    // Between the settings and the file of a rename.
    WriteFile(File("Player1.sre"), games);
    data.SetPlayer(1, "Anna", true);
    data.SetRenamed("Player1", "Anna");
    next();
    EXPECT_EQ(ReadFile(File("Anna.sre")), games);
    EXPECT_EQ(data.RenamedFrom() + data.RenamedTo(), "");
    // Between the file and the settings of a deletion, and after both.
    data.AddPlayer("Bob");
    WriteFile(File("Bob.sre.deleted"), games);
    WriteFile(File("Zoe.sre.deleted"), games);
    next();
    EXPECT_EQ(ReadFile(File("Bob.sre")), games);
    EXPECT_FALSE(std::filesystem::exists(File("Zoe.sre.deleted")));
    // Between two keys, as older versions wrote them, or by hand.
    data.SetPlayer(3, "Anna", false);
    data.SetPlayer(4, "Cid", false);
    data.CurPlayer("Nobody");
    next();
    EXPECT_EQ(FirstPlayers(), "Anna|Bob|Cid||");
    EXPECT_EQ(data.CurPlayer(), "Anna");
}

TEST_F(Players, SettingsThatCanNotBeWrittenLeaveListAndFilesInStep) {
    struct Unwritable : script::MemoryStore {
        bool Change(const std::function<void()>&) override { return false; }
    } unwritable;
    Engine other{{unwritable, clock, surface, sounds, messages, data.AppDir()}};
    other.InitMain();
    EXPECT_EQ(other.data().CurPlayer(), "Player1") << "there is somebody to play, for this run";
    WriteFile(File("Player1.sre"), "x");
    WriteFile(File("Bob.sre"), "y");
    other.data().AddPlayer("Bob");
    EXPECT_FALSE(other.players().EnterPlayer("", "Cid"));
    EXPECT_FALSE(other.players().EnterPlayer("Player1", "Anna"));
    EXPECT_FALSE(other.players().DeletePlayer("Bob"));
    const std::string heard = Heard();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), '\n'), 3) << heard;
    EXPECT_EQ(ReadFile(File("Player1.sre")) + ReadFile(File("Bob.sre")), "xy");
    EXPECT_EQ(other.data().FindPlayer("Cid") + other.data().FindPlayer("Anna"), 0);
}

TEST_F(Players, CurrentOneIsAlwaysListed) {
    data.CurPlayer("Nobody");
    EXPECT_EQ(data.CurPlayer(), "Player1");
    EXPECT_FALSE(engine.players().DeletePlayer("Player1"));
    Start("Freecell");
    engine.commands().CloseGame();
    EXPECT_TRUE(std::filesystem::exists(File("Player1.sre")));
}

TEST_F(Players, LeaveNothingBehindButTheirOrder) {
    for (const char* name : {"B", "C", "D"}) engine.players().EnterPlayer("", name);
    for (const char* file : {"B.sre", "C.sre", "D.sre"}) WriteFile(File(file), "x");
    EXPECT_FALSE(engine.players().DeletePlayer("Player1")) << "the current one";
    EXPECT_TRUE(engine.players().DeletePlayer("B"));
    EXPECT_FALSE(std::filesystem::exists(File("B.sre")));
    EXPECT_EQ(FirstPlayers(), "Player1|C|D||");
    data.SetPlayer(4, "C", false);
    data.PackPlayers();
    EXPECT_EQ(FirstPlayers(), "Player1|C|D||") << "the same name twice";
    engine.results().ClearStat();
    EXPECT_FALSE(std::filesystem::exists(File("D.sre")));
}

}  // namespace
}  // namespace varnello::test
