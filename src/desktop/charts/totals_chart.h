#pragma once

#include "desktop/charts/chart.h"

namespace varnello {

/// The values of the first row as bars below one another, each on a scale of its own with the value
/// above it. Further rows are games to compare with: thin marks along the bars.
class TotalsChart : public Chart {
public:
    using Chart::Chart;

protected:
    void Draw(QPainter& painter, const QRectF& area) const override;
    QString TipAt(const QPointF& at) const override;
    QString Figures() const override;

private:
    double Value(std::size_t series) const;
    void DrawBar(QPainter& painter, std::size_t series, const QRectF& strip) const;
};

}  // namespace varnello
