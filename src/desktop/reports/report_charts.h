#pragma once

#include <QLabel>
#include <QStackedWidget>

#include "desktop/charts/chart.h"
#include "engine/reports/statistics.h"

namespace varnello {

/// Won and lost; no row when nothing was played.
ChartTable ShareTable(const ScoreSummary& summary);
/// Score, moves and seconds; a negative score counts as 0. No row when nothing was played.
ChartTable TotalsTable(const ScoreSummary& summary);
std::vector<double> TotalsRow(const GameFigures& figures);
/// Score, moves and seconds of many games or periods.
ChartTable FiguresTable(const std::vector<GameFigures>& rows);

/// Charts that give way to one sentence while there is nothing to show.
class ChartArea : public QStackedWidget {
public:
    explicit ChartArea(QLayout* charts);

    /// Shows the sentence, or the charts for an empty one.
    void Say(const QString& sentence);

private:
    QLabel* nothing_;
};

}  // namespace varnello
