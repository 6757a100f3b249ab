#include <sys/stat.h>

#include "engine/common/text_file.h"
#include "fixture.h"

// The files of finished games and the list of this run.
namespace varnello::test {
namespace {

constexpr const char* kGood =
    "\"11/18/2026 12:51:26 PM\",\"Avenue\",123456789012345,342,118,4711,1";

TEST(ScoreLines, ReadBackAsWritten) {
    const ScoreRecord records[] = {
        {"11/18/2026 12:51:26 PM", "Baker's Game", GameNumber::Number(123456789012345), 342, 118,
         -4711, 1, "Ada"},
        {"2/29/0004 12:00:00 AM", "a", GameNumber::Text("999999999999999999"), 1, 1, 1, 2, "Ada"},
        {"02/3/2026 1:00:00 AM", "b", GameNumber::Text("012"), 1, 1, 1, 2, ""},
        {"2/29/2026 1:00:00 AM", "c", GameNumber::Text("9999999999999999999"), 1, 1, 1, 2, "Bob"},
        {"", "", GameNumber::Text("1e3"), 0, 0, 0, 0, "Ada"},
        {"no date", "a", GameNumber::Text(""), 2147483647, -2147483647 - 1, 0, -32768, "Bob"}};
    ScoreList list;
    for (const ScoreRecord& record : records) {
        const std::string line = ScoreLine(record);
        const auto fields = ReadScoreLine(line);
        ASSERT_TRUE(fields) << line;
        list.Add(*fields, list.AddPlayer(record.Player));
    }
    for (std::size_t i = 0; i < list.Size(); ++i) EXPECT_EQ(list.Record(i), records[i]);
}

TEST(ScoreLines, NumbersMayHaveLeadingZeros) {
    const auto fields = ReadScoreLine("\"d\",\"g\",007,000000000000002147483647,-00,01,1");
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->GameNo.Number(), GameNumber::Number(7));
    EXPECT_EQ(fields->Time, 2147483647);
}

TEST(ScoreLines, DamagedOnesAreNone) {
    const std::string names = "\"d\",\"g\",", numbers = ",7,1,1,1,1";
    EXPECT_TRUE(ReadScoreLine("\"d\",\"g\"" + numbers));
    for (const char* bad : {"", "d,\"g\"", "\"d\",g", "\"d\" ,\"g\"", "\"d\"x\"g\"", "\"d,\"g\"",
                            "\"d\",\"g", "\"d\",\"g\",\"h\""}) {
        EXPECT_FALSE(ReadScoreLine(bad + numbers)) << bad;
    }
    for (const char* bad :
         {"", "7,1,1,1", "7,1,1,1,1,1", "7,\"1\",1,1,1", "7,1,1,1,\"1\"", ",1,1,1,1", "-7,1,1,1,1",
          "1234567890123456,1,1,1,1", "7,1.5,1,1,1", "7,,1,1,1", "7, 1,1,1,1", "7,+1,1,1,1",
          "7,2147483648,1,1,1", "7,1,-2147483649,1,1", "7,1,1,1,32768", "7,1,1,1,1\r"}) {
        EXPECT_FALSE(ReadScoreLine(names + bad)) << bad;
    }
}

class ScoreFiles : public EngineTest {
protected:
    void Book() {
        Start("Freecell", 5);
        engine.commands().CloseGame();
        Heard();
    }
    static constexpr const char* kBooked = "\"1/1/2026 12:00:00 PM\",\"Freecell\",5,0,0,0,0\r\n";
};

TEST_F(ScoreFiles, GrowAndKeepWhatTheyHold) {
    Book();
    EXPECT_EQ(ReadFile(ScoreFile()), kBooked);
    const std::string odd = "damaged\n\r\n\"x\",\"y\",1,2,3,4,0\n";
    WriteFile(ScoreFile(), odd);
    Book();
    EXPECT_EQ(ReadFile(ScoreFile()), odd + kBooked);
}

TEST_F(ScoreFiles, UnfinishedLineGetsItsEndFirst) {
    for (const std::string& unfinished :
         {std::string(kGood), std::string("x"), std::string(kGood) + "\r"}) {
        WriteFile(ScoreFile(), unfinished);
        Book();
        EXPECT_EQ(ReadFile(ScoreFile()), unfinished + "\r\n" + kBooked);
    }
    WriteFile(ScoreFile(), "");
    Book();
    EXPECT_EQ(ReadFile(ScoreFile()), kBooked) << "an empty file has no line to end";
}

TEST_F(ScoreFiles, AreReadLineByLineWithoutTheDamagedOnes) {
    for (const char* player : {"Ada", "Nobody", "Bob"}) engine.data().AddPlayer(player);
    const std::string good = kGood;
    WriteFile(ScoreFile(), good + "\r\n" + "damaged\r\n\r\n" + good + "\n" + good);
    WriteFile(ScorePath(engine.data(), "Ada"),
              "\"d\",\"Zodiac\",\"12\",1,2,-3,0\r\n\"e\",\"A\",\"x\",1,1,1,0\n");
    WriteFile(ScorePath(engine.data(), "Bob"), "\"f\",\"B\",\"y\",1,2,5,0\r\n");
    WriteFile(ScorePath(engine.data(), "Stranger"), good + "\r\n");
    for (int round = 0; round < 2; ++round) {
        engine.score().OpenAllScore();
        ASSERT_EQ(engine.score().ScoreTop(), 6) << "opening reads afresh";
        EXPECT_EQ(ScoreLine(engine.score().GetScore(3)), good);
        EXPECT_EQ(engine.score().GetScore(3).Player, "Player1");
        EXPECT_EQ(engine.score().GetScore(4),
                  (ScoreRecord{"d", "Zodiac", GameNumber::Text("12"), 1, 2, -3, 0, "Ada"}));
        EXPECT_EQ(engine.score().GetScore(6),
                  (ScoreRecord{"f", "B", GameNumber::Text("y"), 1, 2, 5, 0, "Bob"}));
    }
    engine.score().CloseScore();
    EXPECT_EQ(engine.score().ScoreTop(), 0);
}

TEST_F(ScoreFiles, DirectoryInTheFilesPlaceIsReportedAndTheGameEnds) {
    std::filesystem::create_directory(ScoreFile());
    Start("Freecell", 5);
    Heard();
    engine.commands().CloseGame();
    EXPECT_FALSE(engine.data().GameRunning);
    EXPECT_EQ(engine.score().SesTop(), 1);
    const std::string heard = Heard();
    EXPECT_TRUE(heard.starts_with("message: ")) << heard;
    EXPECT_NE(heard.find(ScoreFile().string()), std::string::npos) << heard;
    engine.score().OpenAllScore();
    EXPECT_EQ(engine.score().ScoreTop(), 0);
    Start("Freecell", 6);
    std::filesystem::remove_all(folder.Path() / "data");
    Heard();
    engine.commands().CloseGame();
    EXPECT_EQ(Heard(), "") << "the folder is made again";
    engine.score().OpenAllScore();
    ASSERT_EQ(engine.score().ScoreTop(), 2) << "what couldn't be written was kept";
    EXPECT_EQ(engine.score().GetScore(1).GameNo, GameNumber::Number(5));
    std::filesystem::remove(ScoreFile());
    std::filesystem::create_directory(ScoreFile());
    Start("Freecell", 7);
    engine.commands().CloseGame();
    std::filesystem::remove(ScoreFile());
    EXPECT_TRUE(engine.players().EnterPlayer("Player1", "Ann"));
    engine.Leave();
    const std::filesystem::path ann = ScorePath(engine.data(), "Ann");
    EXPECT_EQ(ReadLines(ann).size(), 1U) << "written at the end";
    std::filesystem::remove(ann);
    std::filesystem::create_directory(ann);
    Start("Freecell", 8);
    engine.commands().CloseGame();
    std::filesystem::remove(ann);
    engine.data().AddPlayer("Bea");
    engine.data().CurPlayer("Bea");
    EXPECT_TRUE(engine.players().DeletePlayer("Ann"));
    engine.Leave();
    EXPECT_FALSE(std::filesystem::exists(ann)) << "the results of a player who is gone";
}

TEST_F(ScoreFiles, OnlyPlainFilesAndLinesOfSomeLengthAreRead) {
    ASSERT_EQ(mkfifo(ScoreFile().c_str(), 0600), 0);
    const auto open = [&] {
        Progress unseen;
        engine.results().OpenScores(LoadScores(engine.score().Files(), unseen));
    };
    open();  // and isn't waited for
    EXPECT_EQ(engine.score().ScoreTop(), 0);
    EXPECT_NE(Heard().find("Player1.sre"), std::string::npos);
    open();
    EXPECT_EQ(Heard(), "") << "told once";
    StatExport written = engine.results().PrepareExport({});
    written.Unread = {ScoreFile()};
    engine.results().TellExport({}, written);
    EXPECT_NE(Heard().find("Player1.sre"), std::string::npos) << "others read the export";
    EXPECT_FALSE(AppendLine(ScoreFile(), "x"));
    std::filesystem::remove(ScoreFile());
    std::filesystem::create_symlink("/dev/zero", ScoreFile());
    engine.score().OpenAllScore();
    std::filesystem::remove(ScoreFile());
    const std::filesystem::path lines = folder.Path() / "lines";
    const std::string longest(65536, 'a');
    const std::string tooLong(200000, 'b');
    WriteFile(lines, "x\n" + longest + "\n" + tooLong + "\n" + longest + "c\ny\n" + tooLong);
    EXPECT_EQ(ReadLines(lines), (std::vector<std::string>{"x", longest, "y"}));
}

TEST_F(ScoreFiles, LineThatLacksItsEndAloneIsFinishedAndNotDoubled) {
    const std::filesystem::path file = folder.Path() / "lines";
    const std::pair<std::string, std::string> ends[] = {
        {"", "ab\r\n"},         {"x\n", "x\nab\r\n"},     {"ab", "ab\r\n"},
        {"x\nab", "x\nab\r\n"}, {"cab", "cab\r\nab\r\n"}, {"x\na", "x\na\r\nab\r\n"}};
    for (const auto& [before, after] : ends) {
        WriteFile(file, before);
        EXPECT_TRUE(AppendLine(file, "ab"));
        EXPECT_EQ(ReadFile(file), after);
    }
}

TEST_F(ScoreFiles, ListOfThisRunHoldsEveryEndedGame) {
    EXPECT_EQ(engine.score().SesSummary(), ScoreSummary{});
    Start("Freecell", 5);
    engine.data().CurScore = -20;
    engine.data().CurMoves = 7;
    engine.data().CurTime = 100;
    engine.life().EndGame(Outcome::NotWon);
    engine.data().SetPlayer(2, "Ada", true);
    engine.life().StartGame("Zodiac", GameNumber::Text("6"));
    engine.life().EndGame(Outcome::Won);
    ASSERT_EQ(engine.score().SesTop(), 2);
    EXPECT_EQ(engine.score().GetSes(1),
              (ScoreRecord{"", "Freecell", GameNumber::Number(5), 100, 7, -20, 0, "Player1"}));
    EXPECT_EQ(engine.score().GetSes(2),
              (ScoreRecord{"", "Zodiac", GameNumber::Text("6"), 100, 7, -20, 1, "Ada"}));
    EXPECT_EQ(engine.score().SesSummary(), (ScoreSummary{2, 1, 1, -40, 14, 200}));
    for (int i = 0; i < 33000; ++i) engine.score().AddSesGame(Outcome::NotWon);
    EXPECT_EQ(engine.score().SesTop(), 32767);
}

TEST(Summary, StaysAtTheLimitsAndCountsOnlyOneAsWon) {
    ScoreSummary summary;
    ScoreRecord record;
    record.Score = -2147483647;
    record.Time = 2147483647;
    for (const int status : {1, 0, 2, -1, 1}) {
        record.Status = I16(status);
        summary.Add(record);
    }
    EXPECT_EQ(summary.Won, 2);
    EXPECT_EQ(summary.Lost, 3);
    EXPECT_EQ(summary.Time, 2147483647);
    EXPECT_EQ(summary.Score, -2147483647 - 1);
    record.Time = -5;
    summary.Add(record);
    EXPECT_EQ(summary.Time, 2147483642) << "each addition starts from the limit";
}

TEST(TextFiles, LinesEndWithLfOrCrLf) {
    const TempFolder folder;
    const auto file = folder.Path() / "lines";
    EXPECT_TRUE(ReadLines(file).empty());
    WriteFile(file, "a\r\nb\n\nc");
    EXPECT_EQ(ReadLines(file), (std::vector<std::string>{"a", "b", "", "c"}));
}

}  // namespace
}  // namespace varnello::test
