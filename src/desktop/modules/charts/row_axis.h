#pragma once

#include <QCategoryAxis>
#include <QFontMetrics>
#include <QMargins>

#include "desktop/modules/charts/table.h"

namespace varnello {

/// How the rows of a table, counted from 0, spread over an axis.
struct RowSpread {
    double distance = 0;  ///< from row to row, in pixels
    double before = 0.5;  ///< room before the first row, in rows
    double after = 0.5;   ///< room behind the last row, in rows
    qsizetype step = 1;   ///< each so many rows have a name below
};

/// Spreads the rows over so many pixels. Names don't touch each other, and those at the ends reach
/// out of the axis no further than the left and right margin outside of it.
RowSpread SpreadRows(const ChartTable& table, const QMargins& outside, int width,
                     const QFontMetrics& metrics);

/// An axis with the names of rows.
QCategoryAxis* RowAxis(const ChartTable& table, const RowSpread& spread);

}  // namespace varnello
