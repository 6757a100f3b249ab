#include <algorithm>
#include <optional>
#include <random>

#include "engine/flow/session_report.h"
#include "engine/reports/high_scores.h"
#include "engine/reports/log_report.h"
#include "engine/reports/statistics.h"
#include "engine/reports/wins.h"
#include "fixture.h"

// What the result windows show, worked out from score files.
namespace varnello::test {
namespace {

ScoreRecord Game(int score, int moves = 1, int time = 1, int status = 1,
                 const std::string& date = "1/31/2026 12:00:00 PM",
                 const std::string& game = "Freecell") {
    return {date, game, GameNumber::Number(7), time, moves, score, I16(status), ""};
}

class Reports : public EngineTest {
protected:
    void Write(const std::vector<ScoreRecord>& records, const std::string& player = "Player1") {
        std::string text;
        for (const ScoreRecord& record : records) text.append(ScoreLine(record)).append("\r\n");
        if (engine.data().FindPlayer(player) == 0) engine.data().AddPlayer(player);
        WriteFile(ScorePath(engine.data(), player), text);
        engine.score().OpenAllScore();
    }
    std::vector<int> Ranked(std::int32_t ScoreRecord::*field) {
        std::vector<int> values;
        for (std::int16_t place = 1; place <= kTopPlaces; ++place) {
            const ScoreRecord record = engine.score().GetTopScore(place);
            if (!record.Date.empty()) values.push_back(record.*field);
        }
        return values;
    }
    std::string Line(const std::vector<ReportRow>& rows, std::size_t row) const {
        std::string line;
        for (const ReportCell& cell : rows.at(row)) line.append(cell.Text).append("|");
        return line;
    }
};

TEST_F(Reports, GeneralFigures) {
    Write({Game(50, 100, 120)});
    EXPECT_EQ(InEnglish(GeneralLines(engine.score().AllSummary())),
              "Games Played : 1|Games Won : 1|Games Lost : 0|Total Moves : 100|Total Score : 50|"
              "Total Time : 0:02:00|Moves Per Game : 100|Score Per Game : 50|"
              "Time Per Game : 0:02:00|Games Per Hour : 30|Moves Per Hour : 3000|"
              "Score Per Hour : 1500|Winning Percentage : 100%|");
    const Ranking top = TopRows(engine.score(), engine.dates());
    EXPECT_EQ(top.Positions.at(0), 0U) << "where the game stands among all";
    Write({Game(1, 40000), Game(1, 40000)});
    EXPECT_EQ(engine.score().AllSummary().Moves, 80000);
    Write({Game(-1, 3, 2, 0), Game(0, 0, 3, 0)});
    const auto lines = GeneralLines(engine.score().AllSummary());
    EXPECT_EQ(lines[7].English(), "Score Per Game : 0") << "cut towards 0, without a sign";
    EXPECT_EQ(lines[8].English(), "Time Per Game : 0:00:02") << "2.5 seconds go to the even number";
    EXPECT_EQ(GeneralLines({}).back().English(), "Winning Percentage : 0%");
}

TEST_F(Reports, PercentagesOfGamesHaveDecimalsAndThoseOfPlayersDoNot) {
    Write({Game(1), Game(1, 1, 1, 0), Game(1, 1, 1, 2)});
    const auto freecell = static_cast<std::size_t>(engine.data().GetGameID("Freecell") - 1);
    EXPECT_EQ(Line(GameRows(engine.score(), engine.data()), freecell),
              "Freecell|3|1|2|0:00:03|3|3|33.33%|");
    EXPECT_EQ(Line(PlayerRows(engine.score(), engine.data()), 0), "Player1|3|1|2|0:00:03|3|3|33%|");
    EXPECT_EQ(Line(GameRows(engine.score(), engine.data()), 0), "Avenue|0|0|0|0:00:00|0|0|0%|");
}

TEST_F(Reports, FirstFiftyGamesAreChartedAsTheyWere) {
    std::vector<ScoreRecord> games;
    for (int i = 1; i <= 60; ++i) games.push_back(Game(-i, i, 2 * i));
    Write(games);
    const auto charted = FirstGames(engine.score(), "Freecell");
    ASSERT_EQ(charted.size(), 50U);
    EXPECT_EQ(charted.back().Score, -50);
    EXPECT_TRUE(FirstGames(engine.score(), "Avenue").empty());
}

TEST_F(Reports, PeriodsFollowTheCalendar) {
    Write({Game(16, 1, 1, 1, "1/32/2026 1:00:00 AM"), Game(1),
           Game(2, 1, 1, 0, "1/1/2026 12:00:00 AM"), Game(4, 1, 1, 1, "12/31/2025 11:59:59 PM"),
           Game(8, 1, 1, 1, "2/28/2025 1:00:00 AM"), Game(32, 1, 1, 1, "2/1/2026 1:00:00 AM"),
           Game(64, 1, 1, 1, "1/2/2022 1:00:00 AM")});
    const DateTime now{.month = 3, .day = 31, .hour = 23};
    const auto month = engine.score().PeriodSummary({.month = 1, .day = 31}, Interval::Month);
    EXPECT_EQ(month.Label, "Jan 26");
    EXPECT_EQ(month.Score, 3);
    EXPECT_EQ(month.Lost, 1);
    EXPECT_EQ(AddMonths(now, -1), (DateTime{.month = 2, .day = 28, .hour = 23}));
    using Row = std::pair<std::string, int>;
    const auto scores = [&](std::size_t choice) {
        std::vector<Row> rows;
        for (const auto& period : PeriodRows(engine.score(), PeriodChoices()[choice], now)) {
            rows.emplace_back(period.Label, period.Score);
        }
        return rows;
    };
    EXPECT_EQ(scores(3),
              (std::vector<Row>{
                  {"Nov 25", 0}, {"Dec 25", 4}, {"Jan 26", 3}, {"Feb 26", 32}, {"Mar 26", 0}}));
    EXPECT_EQ(scores(5).back(), (Row{"2026", 35}));
    EXPECT_EQ(scores(5)[3], (Row{"2025", 12}));
    EXPECT_EQ(scores(5).front(), (Row{"2022", 64}));
    EXPECT_EQ(scores(2).size(), 30U);
    EXPECT_EQ(scores(2).front().first, "Mar 02");
    EXPECT_EQ(scores(0).back().first, "Mar 31");
}

using Field = std::int32_t ScoreRecord::*;

/// The ranking of won games by the plainest means: place by place, entry by entry.
std::vector<int> SlowFinSort(const std::vector<ScoreRecord>& games, Field key) {
    std::vector<std::optional<int>> top(21);
    for (const ScoreRecord& game : games) {
        if (game.Status != 1) continue;
        for (std::size_t place = 1; place <= 20; ++place) {
            if (top[place].value_or(0) == 0) {
                if (game.*key > 0) top[place] = game.*key;
                break;
            }
            if (game.*key > *top[place]) continue;
            for (std::size_t i = 20; i > place; --i) top[i] = top[i - 1];
            top[place] = game.*key;
            break;
        }
    }
    std::vector<int> ranked;
    for (const auto& entry : top) {
        if (entry) ranked.push_back(*entry);
    }
    return ranked;
}

/// The moves of the games with the highest scores: a stable sort of the games from back to front.
std::vector<int> SlowSort(std::vector<ScoreRecord> games, bool lostToo) {
    std::reverse(games.begin(), games.end());
    std::erase_if(games, [&](const ScoreRecord& game) {
        return game.Score <= 0 || (!lostToo && game.Status == 0);
    });
    std::stable_sort(games.begin(), games.end(),
                     [](const auto& a, const auto& b) { return a.Score > b.Score; });
    std::vector<int> moves;
    for (const ScoreRecord& game : games) moves.push_back(game.Moves);
    moves.resize(std::min<std::size_t>(moves.size(), 20));
    return moves;
}

TEST_F(Reports, RankingsAgreeWithASlowSecondComputation) {
    std::mt19937 random(5);
    for (int round = 0; round < 30; ++round) {
        std::vector<ScoreRecord> games;
        for (int i = 0; i < 2 * round; ++i) {
            const auto draw = [&](int low, int high) {
                return std::uniform_int_distribution(low, high)(random);
            };
            games.push_back(Game(draw(-5, 40), draw(-1, 30), draw(0, 50), draw(0, 2)));
        }
        Write(games);
        for (const bool other : {true, false}) {
            const Field key = other ? &ScoreRecord::Time : &ScoreRecord::Moves;
            FinishedRows(engine.score(), other ? FinishedBy::Time : FinishedBy::Moves,
                         engine.dates());
            EXPECT_EQ(Ranked(key), SlowFinSort(games, key));
            engine.score().Sort("", "", other ? 0 : 1);
            EXPECT_EQ(Ranked(&ScoreRecord::Moves), SlowSort(games, other));
        }
    }
}

TEST_F(Reports, LogPassesByCalendarAge) {
    const DateTime now{.month = 3, .day = 31, .hour = 0, .minute = 0, .second = 1};
    struct Case {
        const char* date;
        const char* passes;  // a letter for each age choice
    };
    for (const auto& [date, passes] :
         {Case{"3/31/2026 11:59:59 PM", "ttttttt"}, Case{"3/30/2026 11:59:59 PM", "ftttttt"},
          Case{"3/28/2026 1:00:00 AM", "ftttttt"}, Case{"3/27/2026 1:00:00 AM", "ffttttt"},
          Case{"3/1/2026 1:00:00 AM", "ffftttt"}, Case{"2/28/2026 1:00:00 AM", "ffffttt"},
          Case{"12/1/2025 1:00:00 AM", "ffffttt"}, Case{"11/30/2025 1:00:00 AM", "ffffftt"},
          Case{"9/30/2025 1:00:00 AM", "fffffft"}, Case{"4/1/2026 1:00:00 AM", "fffffft"},
          Case{"31.3.2026", "fffffft"}}) {
        Write({Game(1, 1, 1, 1, date)});
        std::string found;
        for (const AgeChoice& age : AgeChoices()) {
            const LogFilter filter{.Player = "", .Game = "", .Age = &age};
            found += LogPositions(engine.score().List(), filter, now).empty() ? 'f' : 't';
        }
        EXPECT_EQ(found, passes) << date;
    }
    Write({Game(-7), Game(-3), Game(-5)});
    EXPECT_EQ(NewestOf(engine.score().List()), 2U) << "of one moment the last one";
    const ReportRow odd = RowOf(Game(1, 1, 1, 1, "odd"), 1, kLogColumns, engine.dates());
    EXPECT_LT(odd[7].Value, 0) << "what is no date stands ahead of all dates";
    const std::vector<std::uint32_t> all{0, 1, 2};
    EXPECT_EQ(TotalsOf(engine.score().List(), all).BestScore, -3);
}

TEST_F(Reports, ExportKeepsItsColumns) {
    engine.data().AddPlayer("A name of 25 letters, yes");
    clock.Set({.month = 11, .day = 8, .hour = 13});
    Write({Game(100, 300, 700), Game(-20, 50, 25, 0, "odd date", "Baker's Spider")}, "Zoë");
    engine.data().CurPlayer("Zoë");
    engine.results().ExportStat({folder.Path() / "report", "report"});
    EXPECT_EQ(Heard(), "message: Statistics Successfully Exported to report\n");
    EXPECT_EQ(engine.score().ScoreTop(), 0);
    const std::string report = ReadFile(folder.Path() / "report");
    for (const std::string line :
         {"Varnello Score Board\r\n \r\n*************************\r\n \r\n"
          "Created By    Zoë\r\nCreated Date  11/8/2026 1:00:00 PM\r\n \r\n",
          "Played        Won           Lost          Time          Moves         Score\r\n"
          " 2             1             1            0:12:05        350           80 \r\n \r\n "
          "\r\n",
          "\r\nA name of 25 letters, yes    0             0             0            0:00:00",
          "\r\nZoë            2             1             1            0:12:05",
          "\r\nGame                     Played           Won           Time          Moves         "
          "Score\r\n",
          "\r\nBaker's Spider            1                0            0:00:25        50           "
          "-20 \r\n",
          "\r\nFull Statistics\r\n--------------\r\n",
          "\r\n1/31/2026     Freecell      Zoë           Won            100           300          "
          "0:11:40      7 \r\n",
          "\r\nodd date      Baker's Spid  Zoë           Lost "}) {
        EXPECT_NE(report.find(line), std::string::npos) << line << "\nin\n" << report;
    }
}

TEST_F(Reports, ExportIsSilentWhenItCanNotBe) {
    engine.results().ExportStat({folder.Path() / "no folder" / "report", "report"});
    EXPECT_EQ(Heard(), "");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "no folder"));
}

TEST_F(Reports, AStoppedExportChangesNothing) {
    Write({Game(1), Game(2)});
    const auto target = folder.Path() / "report";
    WriteFile(target, "old");
    StatExport report = engine.results().PrepareExport({target, "report"});
    Progress stopped;
    stopped.Stopped = true;
    EXPECT_FALSE(report.Run(stopped));
    EXPECT_EQ(ReadFile(target), "old");
    EXPECT_FALSE(std::filesystem::exists(target.string() + ".part"));
    Progress progress;
    std::filesystem::create_symlink("/dev/full", target.string() + ".part");
    EXPECT_FALSE(report.Run(progress));
    EXPECT_FALSE(is_symlink(std::filesystem::path(target.string() + ".part")));
    progress.Done = 0;
    EXPECT_TRUE(report.Run(progress));
    EXPECT_GT(ReadFile(target).size(), 1000U);
    EXPECT_LE(progress.Done, report.Whole());
}

TEST_F(Reports, WinsInARowAndAPlaceAmongThem) {
    const auto won = [](int time) { return Game(1, 1, time); };
    Write({won(10), won(20), Game(1, 1, 5, 0), won(15), won(30)});
    EXPECT_EQ(engine.score().PlayerStreak("Player1"), (Streak{2, 2}));
    EXPECT_EQ(engine.score().PlayerStreak("Player1", "Freecell"), (Streak{2, 2}));
    EXPECT_EQ(engine.score().PlayerStreak("Player1", "Avenue"), (Streak{0, 0}));
    Write({won(1), Game(1, 1, 5, 0, "1/31/2026 12:00:00 PM", "Penguin"), won(2), won(3)});
    EXPECT_EQ(engine.score().PlayerStreak("Player1"), (Streak{2, 2})) << "the best one is on";
    EXPECT_EQ(engine.score().PlayerStreak("Player1", "Freecell"), (Streak{3, 3}));
    EXPECT_EQ(engine.score().PlayerStreak("Player1", "Penguin"), (Streak{0, 0}));
    Write({won(10), won(20), Game(1, 1, 5, 0), won(15), won(30), won(30)});
    ScoreRecord last = won(30);
    last.Player = "Player1";
    EXPECT_EQ(PlaceText(OwnWinsOf(engine.score().List(), last))->English(),
              "Your 4th fastest of 5");
    last.Time = 31;
    EXPECT_FALSE(PlaceText(OwnWinsOf(engine.score().List(), last))) << "it isn't booked";
    for (const auto& [place, text] : {std::pair{1, "Your fastest of 30"},
                                      {2, "Your 2nd fastest of 30"},
                                      {12, "Your 12th fastest of 30"},
                                      {23, "Your 23rd fastest of 30"}}) {
        EXPECT_EQ(PlaceText({.Others = std::vector<ScoreRecord>(29), .Place = place})->English(),
                  text);
    }
}

TEST_F(Reports, SessionShowsTheRunningGameLast) {
    EXPECT_EQ(GameLabelsOf(engine).lblGameStarted.English(), "Game Started : ");
    engine.data().Set(keys::Autoplay, 0);
    Start("Freecell", 5);
    engine.commands().CloseGame();
    engine.results().ClearStat();
    engine.life().StartGame("Zodiac", GameNumber::Text("012"));
    clock.Advance(90);
    engine.counters().TimeTick();
    const auto rows = SessionRows(engine, kSessionColumns);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(Line(rows, 0), "Freecell|5|Player1|0:00:00|0|Lost|0|");
    EXPECT_EQ(Line(rows, 1), "Zodiac|012|Player1|0:01:30|0|Running|80|");
    EXPECT_EQ(Line(SessionRows(engine, kDetailColumns), 1), "2|0:01:30|0|80|");
    EXPECT_EQ(SessionLabelsOf(engine).lblSesPlayed.English(), "Games Played : 1")
        << "the running game doesn't count";
    engine.commands().CloseGame();
    EXPECT_EQ(GameLabelsOf(engine).lblGameTime.English(), "Time Elapsed : 0:01:30")
        << "the last figures stay";
}

TEST_F(Reports, OddFilesAreReadAsFarAsTheyGo) {
    const std::string good = ScoreLine(Game(1));
    std::string odd = good + "\n" + std::string(1 << 20, 'x') + "\n" + good + "\r\n\r\n";
    odd += "\"1/1/2026 1:00:00 AM\",\"a" + std::string("\0b", 2) + "\",1,1,1,1,1\n\"" + good;
    odd += "\n\"" + std::string(3 << 20, 'g') + "\",\"g\",1,1,1,1,1\n" + good;
    WriteFile(ScoreFile(), odd);
    engine.score().OpenAllScore();
    EXPECT_EQ(engine.score().ScoreTop(), 4) << "the long line counts as damaged";
    EXPECT_EQ(ReadFile(ScoreFile()), odd) << "a reader changes nothing";
    engine.score().OpenScore("Player1");
    EXPECT_EQ(engine.score().ScoreTop(), 8) << "opening again doubles the list";
    EXPECT_EQ(engine.score().AllSummary().Played, 8);
}

}  // namespace
}  // namespace varnello::test
