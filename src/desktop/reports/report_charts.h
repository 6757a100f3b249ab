#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "desktop/modules/chart_module.h"
#include "engine/reports/statistics.h"

namespace varnello {

/// A chart of the chart module, or a word of regret where that can't be loaded. `name` is what
/// assistive tools call it.
Chart* MakeChart(ChartKind kind, const QString& name);

/// Won and lost, with the figures in the legend.
void ShowShare(Chart& chart, const ScoreSummary& summary);
/// Score, moves and seconds; a negative score shows as 0.
void ShowTotals(Chart& chart, double score, double moves, double seconds);
/// Score, moves and seconds of many games or periods; `names` may be empty.
void ShowFigures(Chart& chart, const std::vector<GameFigures>& rows, const QStringList& names = {});

}  // namespace varnello
