#pragma once

#include "desktop/modules/charts/chart_panel.h"
#include "desktop/modules/charts/row_axis.h"
#include "desktop/modules/charts/scale.h"

namespace varnello {

/// A line with marks for each series over all rows.
class RowChart : public ChartPanel {
public:
    using ChartPanel::ChartPanel;

protected:
    void Draw(QChart& chart, const QSize& size) const override;
    QString TipAt(QChart& chart, const QPointF& at) const override;
    QString Figures() const override;

private:
    /// The scale of all values, with room for a mark at both ends.
    Scale FullScale(int height) const;
    void AddZeroLine(QChart& chart, const RowSpread& spread) const;
    /// A line with a mark at the last and each so many rows before.
    void AddLine(QChart& chart, qsizetype series, qsizetype marksEvery) const;
};

}  // namespace varnello
