#pragma once

#include <QColor>
#include <QPalette>

namespace varnello {

/// The colour of a series, counted from 0. The first three are told apart without red and green
/// too.
QColor SeriesColour(qsizetype series, const QPalette& palette);

/// The colour of texts, of the line at 0, of grid lines, and of what lies behind them.
QColor InkColour(const QPalette& palette);
QColor AxisColour(const QPalette& palette);
QColor GridColour(const QPalette& palette);
QColor PaperColour(const QPalette& palette);

/// Black or white, whichever reads better on the colour.
QColor TextColourOn(const QColor& fill);

}  // namespace varnello
