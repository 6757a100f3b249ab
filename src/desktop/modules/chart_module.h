#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <QtPlugin>

namespace varnello {

/// A table of numbers for a chart: rows of values, a name for each series.
struct ChartTable {
    QStringList labels;         ///< one a series; shown in the legend as they stand
    QList<QList<double>> rows;  ///< a value for each series; an empty row keeps its place
    QStringList rowNames;       ///< one a row, on the axis; when empty, rows count from 1
};

enum class ChartKind {
    Share,   ///< the parts of a whole: the first row
    Totals,  ///< one column a series: the first row
    Rows,    ///< one line a series over all rows
};

/// A chart with tool tips that follows the palette and font of its window. It tells its figures as
/// the accessible description; the name is its owner's.
class Chart : public QWidget {
public:
    using QWidget::QWidget;
    /// Shows a table instead of what was shown. Missing values and such as aren't finite are left
    /// out; without any value but 0 the chart says that nothing is there.
    virtual void Show(const ChartTable& table) = 0;
};

/// Makes the charts of the reports.
class ChartModule {
public:
    virtual ~ChartModule() = default;
    /// An empty chart; the parent owns it.
    virtual Chart* NewChart(ChartKind kind, QWidget* parent) = 0;
};

/// The chart module, loaded when first asked for; nullptr when it can't be loaded.
ChartModule* Charts();

}  // namespace varnello

Q_DECLARE_INTERFACE(varnello::ChartModule, "varnello.ChartModule")
