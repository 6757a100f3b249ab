#include "engine/reports/statistics.h"

#include <cmath>

#include "engine/common/calendar.h"
#include "engine/common/number_text.h"
#include "engine/common/rounding.h"

namespace varnello {
namespace {

constexpr std::size_t kMaxCharted = 50;

double OneForZero(std::int32_t divisor) { return divisor == 0 ? 1.0 : divisor; }

ReportRow SummaryRow(std::string name, const ScoreSummary& summary, double percent) {
    return {{std::move(name)},         NumberCell(summary.Played), NumberCell(summary.Won),
            NumberCell(summary.Lost),  TimeCell(summary.Time),     NumberCell(summary.Moves),
            NumberCell(summary.Score), PercentCell(percent)};
}

DateTime Step(const DateTime& moment, int count, Interval interval) {
    switch (interval) {
        case Interval::Day: return AddDays(moment, count);
        case Interval::Month: return AddMonths(moment, count);
        case Interval::Year: break;
    }
    return AddYears(moment, count);
}

}  // namespace

std::vector<Phrase> GeneralLines(const ScoreSummary& summary) {
    const double played = OneForZero(summary.Played);
    const double time = OneForZero(summary.Time);
    const auto whole = [](double value) { return std::trunc(value) + 0.0; };  // never "-0"
    const auto perHour = [&](std::int32_t value) { return whole(value / time * 3600); };
    return {Say("Games Played : %1", {summary.Played}),
            Say("Games Won : %1", {summary.Won}),
            Say("Games Lost : %1", {summary.Lost}),
            Say("Total Moves : %1", {summary.Moves}),
            Say("Total Score : %1", {summary.Score}),
            Say("Total Time : %1", {Duration{summary.Time}}),
            Say("Moves Per Game : %1", {whole(summary.Moves / played)}),
            Say("Score Per Game : %1", {whole(summary.Score / played)}),
            Say("Time Per Game : %1", {Duration{RoundTo32(summary.Time / played)}}),
            Say("Games Per Hour : %1", {perHour(summary.Played)}),
            Say("Moves Per Hour : %1", {perHour(summary.Moves)}),
            Say("Score Per Hour : %1", {perHour(summary.Score)}),
            Say("Winning Percentage : %1%", {RoundHalfEven2(summary.Won / played * 100)})};
}

std::vector<ReportRow> GameRows(const cScore& score, const cData& data) {
    std::vector<ReportRow> rows;
    for (std::int16_t id = 1; id <= data.TotalGames(); ++id) {
        const std::string name = data.GetGName(id);
        const ScoreSummary summary = score.GameSummary(name);
        const double wonTimes100 = Saturate32(std::int64_t{summary.Won} * 100);
        rows.push_back(
            SummaryRow(name, summary, RoundHalfEven2(wonTimes100 / OneForZero(summary.Played))));
    }
    return rows;
}

std::vector<ReportRow> PlayerRows(const cScore& score, const cData& data) {
    std::vector<ReportRow> rows;
    for (std::int16_t slot = 1; slot <= data.TotalPlayers(); ++slot) {
        const std::string name = data.GetPlayer(slot);
        const ScoreSummary summary = score.PlayerSummary(name);
        const double part = RoundHalfEven2(summary.Won / OneForZero(summary.Played));
        rows.push_back(SummaryRow(name, summary, part * 100));
    }
    return rows;
}

std::span<const PeriodChoice> PeriodChoices() {
    static constexpr PeriodChoice kChoices[] = {
        {say::Text("Last 5 Days"), "5d", Interval::Day, 5, say::Text("Day")},
        {say::Text("Last 10 Days"), "10d", Interval::Day, 10, say::Text("Day")},
        {say::Text("Last 30 Days"), "30d", Interval::Day, 30, say::Text("Day")},
        {say::Text("Last 5 Months"), "5m", Interval::Month, 5, say::Text("Month")},
        {say::Text("Last 10 Months"), "10m", Interval::Month, 10, say::Text("Month")},
        {say::Text("Last 5 Years"), "5y", Interval::Year, 5, say::Text("Year")},
    };
    return kChoices;
}

std::array<Column, 3> PeriodColumns(const PeriodChoice& choice) {
    return {{{choice.Heading, ColumnKind::Label},
             {say::Text("Played"), ColumnKind::Value},
             {say::Text("Won"), ColumnKind::Value}}};
}

std::vector<PeriodSummary> PeriodRows(const cScore& score, const PeriodChoice& choice,
                                      const DateTime& now) {
    std::vector<DateTime> dates;
    for (int k = 1 - choice.Rows; k <= 0; ++k) dates.push_back(Step(now, k, choice.interval));
    return score.PeriodSummaries(dates, choice.interval);
}

std::vector<ReportRow> PeriodLines(const std::vector<PeriodSummary>& periods) {
    std::vector<ReportRow> rows;
    rows.reserve(periods.size());
    for (const PeriodSummary& period : periods) {
        rows.push_back({{period.Label, static_cast<double>(rows.size())},
                        NumberCell(period.Played),
                        NumberCell(period.Won)});
    }
    return rows;
}

std::vector<ScoreRecord> FirstGames(const cScore& score, std::string_view game) {
    std::vector<ScoreRecord> games;
    for (const std::uint32_t position : score.FirstOf(game, kMaxCharted)) {
        games.push_back(score.List().Record(position));
    }
    return games;
}

}  // namespace varnello
