#pragma once

#include "desktop/modules/charts/chart_panel.h"

namespace varnello {

/// The parts of a whole as a ring with percents, and a legend.
class ShareChart : public ChartPanel {
public:
    using ChartPanel::ChartPanel;

protected:
    void Draw(QChart& chart, const QSize& size) const override;
    QString TipAt(QChart& chart, const QPointF& at) const override;
    QString Figures() const override;

private:
    QString PercentText(double part) const;
    QString TextOf(qsizetype series) const;
};

}  // namespace varnello
