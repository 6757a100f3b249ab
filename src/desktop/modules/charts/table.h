#pragma once

#include <QLocale>

#include "desktop/modules/chart_module.h"

namespace varnello {

/// The table with exactly one value a series in each row: NaN for a missing one and for one that
/// isn't finite; none beyond +-1e15, so that all whole ones are exact.
ChartTable Completed(const ChartTable& table);

/// Whether no value differs from 0.
bool IsBlank(const ChartTable& table);

/// The first row, with 0 for what is missing. The table must have a row.
QList<double> FirstRow(const ChartTable& table);

/// A row's name, or its number from 1 where it has none.
QString RowName(const ChartTable& table, qsizetype row);

/// A whole number as the user's language writes it.
QString NumberText(double value, const QLocale& locale);

/// "Moves : 1,234"
QString ValueText(const QString& label, double value, const QLocale& locale);

/// The texts of a row's values; empty if it has none.
QString ValuesText(const ChartTable& table, qsizetype row, const QString& separator,
                   const QLocale& locale);

}  // namespace varnello
