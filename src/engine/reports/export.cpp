#include "engine/reports/export.h"

#include <initializer_list>
#include <string>

#include "engine/common/calendar.h"
#include "engine/common/utf8.h"
#include "engine/reports/row.h"

namespace varnello {
namespace {

constexpr std::size_t kZone = 14;           // columns
constexpr std::size_t kGameNameWidth = 25;  // columns
constexpr std::size_t kCutNames = 12;       // characters of a name beside others
constexpr std::string_view kLineEnd = "\r\n";

/// A whole number as an item: a blank or the minus sign, the digits, a blank.
std::string Item(std::int32_t number) {
    std::string item = number < 0 ? "" : " ";
    return item.append(std::to_string(number)).append(" ");
}

std::string Item(const GameNumber& number) {
    return number.IsText() ? number.Shown() : std::string(" ").append(number.Shown()).append(" ");
}

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

/// Writes lines whose items begin at multiples of 14 columns, always at least one column on.
class ReportWriter {
public:
    explicit ReportWriter(std::ostream& out) : out_(out) {}

    void Line(std::initializer_list<std::string> items) {
        std::string line;
        std::size_t column = 0;
        const std::string* last = items.end() - 1;
        for (const std::string& item : items) {
            line += item;
            column += CharacterCount(item);
            if (&item == last) break;
            const std::size_t next = (column / kZone + 1) * kZone;
            line += Blanks(next - column);
            column = next;
        }
        out_ << line << kLineEnd;
    }
    void Blank() { Line({" "}); }
    void Heading(const char* title, std::size_t hyphens) {
        Line({title});
        Line({std::string(hyphens, '-')});
    }

private:
    std::ostream& out_;
};

void WriteGeneral(ReportWriter& report, const ScoreSummary& all) {
    report.Heading("General Statistics", 18);
    report.Line({"Played", "Won", "Lost", "Time", "Moves", "Score"});
    report.Line({Item(all.Played), Item(all.Won), Item(all.Lost), FormatTime(all.Time),
                 Item(all.Moves), Item(all.Score)});
}

void WritePlayers(ReportWriter& report, const cScore& score, const cData& data) {
    report.Heading("Player Statistics", 17);
    report.Line({"Player", "Played", "Won", "Lost", "Time", "Moves", "Score"});
    for (std::int16_t slot = 1; slot <= data.TotalPlayers(); ++slot) {
        const std::string name = data.GetPlayer(slot);
        const ScoreSummary sum = score.PlayerSummary(name);
        report.Line({name, Item(sum.Played), Item(sum.Won), Item(sum.Lost), FormatTime(sum.Time),
                     Item(sum.Moves), Item(sum.Score)});
    }
}

void WriteGames(ReportWriter& report, const cScore& score, const cData& data) {
    const auto wide = [](const std::string& name) {
        const std::size_t width = CharacterCount(name);
        return name + Blanks(width < kGameNameWidth ? kGameNameWidth - width : 0);
    };
    report.Heading("Games Statistics", 16);
    report.Line({wide("Game") + "Played", "Won", "Time", "Moves", "Score"});
    for (std::int16_t id = 1; id <= data.TotalGames(); ++id) {
        const std::string name = data.GetGName(id);
        const ScoreSummary sum = score.GameSummary(name);
        report.Line({wide(name) + Item(sum.Played), Item(sum.Won), FormatTime(sum.Time),
                     Item(sum.Moves), Item(sum.Score)});
    }
}

void WriteRecords(ReportWriter& report, const cScore& score, const DateForms& dates) {
    report.Heading("Full Statistics", 14);  // one hyphen short, as the report always was
    report.Line({"Date", "Game", "Player", "Status", "Score", "Moves", "Time", "Game No"});
    for (std::int32_t index = 1; index <= score.ScoreTop(); ++index) {
        const ScoreRecord record = score.GetScore(index);
        const auto moment = ParseDateText(record.Date);
        report.Line({moment ? dates.Date(*moment) : record.Date,
                     std::string(FirstCharacters(record.Game, kCutNames)),
                     std::string(FirstCharacters(record.Player, kCutNames)),
                     std::string(WonLostText(record.Status)), Item(record.Score),
                     Item(record.Moves),
                     FormatTime(record.Time) + Blanks(5) + Item(record.GameNo)});
    }
}

}  // namespace

void WriteStat(std::ostream& out, const cScore& score, const cData& data, const DateTime& now,
               const DateForms& dates) {
    ReportWriter report(out);
    const auto twoBlanks = [&] {
        report.Blank();
        report.Blank();
    };
    report.Line({std::string(kProductName) + " Score Board"});
    report.Blank();
    report.Line({std::string(25, '*')});
    report.Blank();
    report.Line({"Created By", data.CurPlayer()});
    report.Line({"Created Date", dates.DateAndTime(now)});
    report.Blank();
    report.Line({std::string(34, '-')});
    report.Blank();
    WriteGeneral(report, score.AllSummary());
    twoBlanks();
    WritePlayers(report, score, data);
    twoBlanks();
    WriteGames(report, score, data);
    twoBlanks();
    WriteRecords(report, score, dates);
}

}  // namespace varnello
