#include "engine/reports/export.h"

#include <fstream>
#include <initializer_list>
#include <system_error>

#include "engine/common/calendar.h"
#include "engine/common/utf8.h"
#include "engine/definitions/catalogue.h"
#include "engine/reports/row.h"
#include "engine/scores/sums.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr std::size_t kZone = 14;           // columns
constexpr std::size_t kGameNameWidth = 25;  // columns
constexpr std::size_t kCutNames = 12;       // characters of a name beside others
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::int64_t kWritingPerReading =
    8;  // how much longer a game takes to write than to read

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

void WritePlayers(ReportWriter& report, const StatExport& head, const ScoreList& list,
                  const ScoreSums& sums) {
    report.Heading("Player Statistics", 17);
    report.Line({"Player", "Played", "Won", "Lost", "Time", "Moves", "Score"});
    for (const ScoreFile& file : head.Files) {
        const auto id = list.Players().Find(file.Player);
        const ScoreSummary sum = id ? sums.byPlayer[*id].summary : ScoreSummary{};
        report.Line({file.Player, Item(sum.Played), Item(sum.Won), Item(sum.Lost),
                     FormatTime(sum.Time), Item(sum.Moves), Item(sum.Score)});
    }
}

void WriteGames(ReportWriter& report, const ScoreList& list, const ScoreSums& sums) {
    const auto wide = [](const std::string& name) {
        const std::size_t width = CharacterCount(name);
        return name + Blanks(width < kGameNameWidth ? kGameNameWidth - width : 0);
    };
    report.Heading("Games Statistics", 16);
    report.Line({wide("Game") + "Played", "Won", "Time", "Moves", "Score"});
    for (const GameRow& game : kCatalogue) {
        const auto id = list.Games().Find(game.Name);
        const ScoreSummary sum = id ? sums.byGame[*id] : ScoreSummary{};
        report.Line({wide(std::string(game.Name)) + Item(sum.Played), Item(sum.Won),
                     FormatTime(sum.Time), Item(sum.Moves), Item(sum.Score)});
    }
}

void WriteRecords(ReportWriter& report, const ScoreList& list, const DateForms& dates,
                  Progress& progress, std::int64_t count) {
    constexpr std::size_t kLook = 1024;     // records between two looks at the progress
    report.Heading("Full Statistics", 14);  // one hyphen short, as the report always was
    report.Line({"Date", "Game", "Player", "Status", "Score", "Moves", "Time", "Game No"});
    const std::int64_t before = progress.Done;
    for (std::size_t position = 0; position < list.Size(); ++position) {
        if (position % kLook == 0) {
            if (progress.Stopped) return;
            progress.Done = before + static_cast<std::int64_t>(static_cast<double>(count) *
                                                               static_cast<double>(position) /
                                                               static_cast<double>(list.Size()));
        }
        const ScoreRecord record = list.Record(position);
        const auto moment = ScoreList::DateOf(list.At(position));
        report.Line({moment ? dates.Date(*moment) : record.Date,
                     std::string(FirstCharacters(record.Game, kCutNames)),
                     std::string(FirstCharacters(record.Player, kCutNames)),
                     std::string(WonLostText(record.Status)), Item(record.Score),
                     Item(record.Moves),
                     FormatTime(record.Time) + Blanks(5) + Item(record.GameNo)});
    }
}

/// Whether a report may take the place of what is there.
bool IsPlainOrMissing(const std::filesystem::path& file) {
    std::error_code none;
    const auto kind = std::filesystem::status(file, none).type();
    return kind == std::filesystem::file_type::regular ||
           kind == std::filesystem::file_type::not_found;
}

}  // namespace

void WriteStat(std::ostream& out, const StatExport& head, const ScoreList& list, Progress& progress,
               std::int64_t count) {
    const ScoreSums sums(list);
    ReportWriter report(out);
    const auto twoBlanks = [&] {
        report.Blank();
        report.Blank();
    };
    report.Line({std::string(kProductName) + " Score Board"});
    report.Blank();
    report.Line({std::string(25, '*')});
    report.Blank();
    report.Line({"Created By", head.CreatedBy});
    report.Line({"Created Date", head.Dates.DateAndTime(head.Now)});
    report.Blank();
    report.Line({std::string(34, '-')});
    report.Blank();
    WriteGeneral(report, sums.all);
    twoBlanks();
    WritePlayers(report, head, list, sums);
    twoBlanks();
    WriteGames(report, list, sums);
    twoBlanks();
    WriteRecords(report, list, head.Dates, progress, count);
}

std::int64_t StatExport::Whole() const { return BytesOf(Files) * (1 + kWritingPerReading); }

bool StatExport::Run(Progress& progress) {
    LoadedScores loaded = LoadScores(Files, progress);
    Unread = std::move(loaded.Unread);
    std::error_code error;
    const std::filesystem::path target = std::filesystem::weakly_canonical(Target, error);
    if (error || progress.Stopped || !IsPlainOrMissing(target)) return false;
    std::filesystem::path part = target;
    part += ".part";
    std::ofstream out(part, std::ios::binary);
    if (!out) return false;
    WriteStat(out, *this, loaded.List, progress, Whole() - BytesOf(Files));
    out.close();
    if (out && !progress.Stopped) {
        const auto old = std::filesystem::status(target, error);
        if (!error) std::filesystem::permissions(part, old.permissions(), error);
        std::filesystem::rename(part, target, error);
        if (!error) return true;
    }
    std::filesystem::remove(part, error);
    return false;
}

}  // namespace varnello
