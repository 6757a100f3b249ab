#pragma once

#include <QColor>
#include <QPalette>

#include "desktop/charts/chart.h"

namespace varnello {

/// The colour of a series. Those that stand side by side differ in lightness as well, so that they
/// are told apart without red and green, and in print.
QColor SeriesColour(Series series, const QPalette& palette);

/// The colour of texts, of the line at 0, of grid lines, and of what lies behind them.
QColor InkColour(const QPalette& palette);
QColor AxisColour(const QPalette& palette);
QColor GridColour(const QPalette& palette);
QColor PaperColour(const QPalette& palette);

}  // namespace varnello
