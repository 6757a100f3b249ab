#pragma once

#include "desktop/modules/charts/chart_panel.h"

namespace varnello {

/// A column for each value of one row, with the value above it.
class TotalsChart : public ChartPanel {
public:
    using ChartPanel::ChartPanel;

protected:
    void Draw(QChart& chart, const QSize& size) const override;
    QString TipAt(QChart& chart, const QPointF& at) const override;
    QString Figures() const override;

private:
    void AddColumns(QChart& chart) const;
};

}  // namespace varnello
