#include "desktop/modules/charts/table.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace varnello {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kLimit = 1e15;

}  // namespace

ChartTable Completed(const ChartTable& table) {
    ChartTable all = table;
    for (QList<double>& row : all.rows) {
        row.resize(std::min(row.size(), table.labels.size()));
        for (double& value : row) {
            value = std::isfinite(value) ? std::clamp(value, -kLimit, kLimit) : kNone;
        }
        row.insert(row.size(), table.labels.size() - row.size(), kNone);
    }
    return all;
}

bool IsBlank(const ChartTable& table) {
    const auto blank = [](double value) { return std::isnan(value) || value == 0; };
    return std::all_of(table.rows.begin(), table.rows.end(), [&](const QList<double>& row) {
        return std::all_of(row.begin(), row.end(), blank);
    });
}

QList<double> FirstRow(const ChartTable& table) {
    QList<double> row = table.rows.front();
    std::replace_if(
        row.begin(), row.end(), [](double value) { return std::isnan(value); }, 0.0);
    return row;
}

QString RowName(const ChartTable& table, qsizetype row) {
    const QString name = table.rowNames.value(row);
    return name.isEmpty() ? QString::number(row + 1) : name;
}

QString NumberText(double value, const QLocale& locale) { return locale.toString(value, 'f', 0); }

QString ValueText(const QString& label, double value, const QLocale& locale) {
    return label + QStringLiteral(" : ") + NumberText(value, locale);
}

QString ValuesText(const ChartTable& table, qsizetype row, const QString& separator,
                   const QLocale& locale) {
    QStringList values;
    for (qsizetype series = 0; series < table.labels.size(); ++series) {
        const double value = table.rows[row][series];
        if (!std::isnan(value)) values << ValueText(table.labels[series], value, locale);
    }
    return values.join(separator);
}

}  // namespace varnello
