#include "desktop/reports/report_charts.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

namespace varnello {
namespace {

class NoChart : public Chart {
public:
    NoChart() {
        auto* all = new QVBoxLayout(this);
        auto* regret = new QLabel(QStringLiteral("The charts can't be loaded."));
        regret->setAlignment(Qt::AlignCenter);
        all->addWidget(regret);
    }
    void Show(const ChartTable&) override {}
};

QStringList FigureLabels() {
    return {QStringLiteral("Score"), QStringLiteral("Moves"), QStringLiteral("Time")};
}

}  // namespace

Chart* MakeChart(ChartKind kind, const QString& name) {
    ChartModule* module = Charts();
    Chart* chart = module ? module->NewChart(kind, nullptr) : new NoChart;
    chart->setAccessibleName(name);
    return chart;
}

void ShowShare(Chart& chart, const ScoreSummary& summary) {
    chart.Show({.labels = {QStringLiteral("Won : %1").arg(summary.Won),
                           QStringLiteral("Lost : %1").arg(summary.Lost)},
                .rows = {{double(summary.Won), double(summary.Lost)}},
                .rowNames = {}});
}

void ShowTotals(Chart& chart, double score, double moves, double seconds) {
    chart.Show({.labels = FigureLabels(),
                .rows = {{std::max(score, 0.0), moves, seconds}},
                .rowNames = {}});
}

void ShowFigures(Chart& chart, const std::vector<GameFigures>& rows, const QStringList& names) {
    ChartTable table{.labels = FigureLabels(), .rows = {}, .rowNames = names};
    for (const auto& [score, moves, seconds] : rows) {
        table.rows.append({double(score), double(moves), double(seconds)});
    }
    chart.Show(table);
}

}  // namespace varnello
