#include <utility>

#include "engine/flow/session_report.h"
#include "engine/reports/high_scores.h"
#include "engine/reports/log_report.h"
#include "engine/reports/statistics.h"
#include "script/scripted_table.h"

// The commands that stand for the windows which show results.
namespace varnello::script {
namespace {

/// The score store open for as long as a report looks at it.
class OpenScores {
public:
    explicit OpenScores(cScore& score) : score_(score) { score_.OpenAllScore(); }
    ~OpenScores() { score_.CloseScore(); }
    OpenScores(const OpenScores&) = delete;
    OpenScores& operator=(const OpenScores&) = delete;

private:
    cScore& score_;
};

void PrintRows(std::ostream& out, const char* label, const std::vector<ReportRow>& rows) {
    for (const ReportRow& row : rows) {
        out << label;
        const char* separator = "";
        for (const ReportCell& cell : row) out << std::exchange(separator, "|") << cell.Text;
        out << '\n';
    }
}

template <typename Choices>
const auto& ChoiceOf(const Choices& choices, std::string_view key) {
    for (const auto& choice : choices) {
        if (choice.Key == key) return choice;
    }
    throw BadLine("no such key: " + std::string(key));
}

void PrintPeriods(std::ostream& out, const Engine& engine, std::string_view key) {
    const PeriodChoice& choice = ChoiceOf(PeriodChoices(), key);
    for (const PeriodSummary& period : PeriodRows(engine.score(), choice, engine.Now())) {
        out << "dates: " << period.Label << '|' << period.Played << '|' << period.Won << '|'
            << period.Score << '|' << period.Moves << '|' << period.Time << '\n';
    }
}

void PrintLogReport(std::ostream& out, const Engine& engine, std::string_view key,
                    const std::string& names) {
    const std::size_t bar = names.find('|');
    if (bar == std::string::npos) throw BadLine("a log takes PLAYER|GAME");
    const LogFilter filter{.Player = names.substr(0, bar),
                           .Game = names.substr(bar + 1),
                           .Age = &ChoiceOf(AgeChoices(), key)};
    std::vector<ReportRow> rows;
    const ScoreList& list = engine.score().List();
    for (const std::uint32_t position : LogPositions(list, filter, engine.Now())) {
        const auto number = static_cast<double>(rows.size() + 1);
        rows.push_back(RowOf(list.Record(position), number, kLogColumns, engine.dates()));
    }
    PrintRows(out, "entry: ", rows);
}

void PrintSession(std::ostream& out, const Engine& engine) {
    for (const Phrase& label : SessionLabelsOf(engine).InOrder()) {
        out << "session: " << label.English() << '\n';
    }
    for (const Phrase& label : GameLabelsOf(engine).InOrder()) {
        out << "session: " << label.English() << '\n';
    }
    PrintRows(out, "row: ", SessionRows(engine, kSessionColumns));
}

FinishedBy Ranking(std::string_view word) {
    if (word == "score") return FinishedBy::Score;
    if (word == "moves") return FinishedBy::Moves;
    if (word == "time") return FinishedBy::Time;
    throw BadLine("no such ranking: " + std::string(word));
}

}  // namespace

void ScriptedTable::Report(Words& words) {
    const std::string_view what = words.Word();
    const OpenScores open(engine_.score());
    if (!ReportSums(what, words) && !ReportGames(what, words)) {
        throw BadLine("no such report: " + std::string(what));
    }
}

bool ScriptedTable::ReportSums(std::string_view what, Words& words) {
    if (what == "general") {
        words.End();
        for (const Phrase& line : GeneralLines(engine_.score().AllSummary())) {
            out_ << "general: " << line.English() << '\n';
        }
    } else if (what == "games") {
        words.End();
        PrintRows(out_, "games: ", GameRows(engine_.score(), engine_.data()));
    } else if (what == "players") {
        words.End();
        PrintRows(out_, "players: ", PlayerRows(engine_.score(), engine_.data()));
    } else if (what == "dates") {
        const std::string_view key = words.Word();
        words.End();
        PrintPeriods(out_, engine_, key);
    } else if (what == "session") {
        words.End();
        PrintSession(out_, engine_);
    } else {
        return false;
    }
    return true;
}

bool ScriptedTable::ReportGames(std::string_view what, Words& words) {
    cScore& score = engine_.score();
    const DateForms& dates = engine_.dates();
    if (what == "game-chart") {
        for (const ScoreRecord& game : FirstGames(score, words.Game())) {
            out_ << "chart: " << game.Score << '|' << game.Moves << '|' << game.Time << '\n';
        }
    } else if (what == "top") {
        words.End();
        PrintRows(out_, "top: ", TopRows(score, dates).Rows);
    } else if (what == "top-game") {
        PrintRows(out_, "top: ", TopRowsOfGame(score, words.Game(), dates).Rows);
    } else if (what == "top-player") {
        PrintRows(out_, "top: ", TopRowsOfPlayer(score, words.Rest(), dates).Rows);
    } else if (what == "finished") {
        const FinishedBy by = Ranking(words.Word());
        words.End();
        PrintRows(out_, "finished: ", FinishedRows(score, by, dates).Rows);
    } else if (what == "log") {
        const std::string_view key = words.Word();
        PrintLogReport(out_, engine_, key, words.Rest());
    } else {
        return false;
    }
    return true;
}

void ScriptedTable::Export(const std::string& name) {
    if (std::filesystem::path(name).has_parent_path()) throw BadLine("not a file's name: " + name);
    engine_.results().ExportStat({.Path = engine_.data().AppDir() / name, .Name = name});
}

bool ScriptedTable::ReportOn(std::string_view command, Words& words) {
    if (command == "report") {
        Report(words);
    } else if (command == "export") {
        Export(words.Rest());
    } else if (command == "clear-statistics") {
        words.End();
        if (Ask(kClearStatQuestion)) engine_.results().ClearStat();
    } else {
        return false;
    }
    return true;
}

}  // namespace varnello::script
