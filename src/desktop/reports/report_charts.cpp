#include "desktop/reports/report_charts.h"

#include <QLayout>
#include <algorithm>

namespace varnello {
namespace {

const std::vector<Series> kFigures{Series::Score, Series::Moves, Series::Time};

}  // namespace

ChartTable ShareTable(const ScoreSummary& summary) {
    ChartTable table{.series = {Series::Won, Series::Lost}};
    if (summary.Played > 0) table.rows = {{double(summary.Won), double(summary.Lost)}};
    return table;
}

ChartTable TotalsTable(const ScoreSummary& summary) {
    ChartTable table{.series = kFigures};
    if (summary.Played > 0) {
        table.rows = {TotalsRow({summary.Score, summary.Moves, summary.Time})};
    }
    return table;
}

std::vector<double> TotalsRow(const GameFigures& figures) {
    const auto& [score, moves, seconds] = figures;
    return {std::max(double(score), 0.0), double(moves), double(seconds)};
}

ChartTable FiguresTable(const std::vector<GameFigures>& rows) {
    ChartTable table{.series = kFigures};
    for (const auto& row : rows) table.rows.emplace_back(row.begin(), row.end());
    return table;
}

ChartArea::ChartArea(QLayout* charts) : nothing_(new QLabel) {
    auto* page = new QWidget;
    charts->setContentsMargins(0, 0, 0, 0);
    page->setLayout(charts);
    addWidget(page);
    nothing_->setAlignment(Qt::AlignCenter);
    nothing_->setWordWrap(true);
    nothing_->setTextFormat(Qt::PlainText);
    nothing_->setForegroundRole(QPalette::PlaceholderText);
    nothing_->setBackgroundRole(QPalette::Base);
    nothing_->setAutoFillBackground(true);
    nothing_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    addWidget(nothing_);
}

void ChartArea::Say(const QString& sentence) {
    nothing_->setText(sentence);
    setCurrentIndex(sentence.isEmpty() ? 0 : 1);
}

}  // namespace varnello
