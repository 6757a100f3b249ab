#pragma once

#include <QList>
#include <QString>
#include <QWidget>
#include <QtPlugin>

namespace varnello {

/// One labelled value of a chart.
struct ChartBar {
    QString label;
    double value = 0;
};

/// Makes the charts of the reports.
class ChartModule {
public:
    virtual ~ChartModule() = default;
    /// One row of labelled columns, each in its own colour.
    virtual QWidget* TotalsChart(const QList<ChartBar>& bars, QWidget* parent) = 0;
};

/// The chart module, loaded when first asked for; nullptr when it can't be loaded.
ChartModule* Charts();

}  // namespace varnello

Q_DECLARE_INTERFACE(varnello::ChartModule, "varnello.ChartModule")
