#pragma once

#include "desktop/charts/chart.h"

namespace varnello {

/// The parts of a whole, the values of the first row, as a ring with a legend. In its middle stands
/// the first part in percent.
class ShareChart : public Chart {
public:
    using Chart::Chart;

protected:
    void Draw(QPainter& painter, const QRectF& area) const override;
    QString TipAt(const QPointF& at) const override;
    QString Figures() const override;

private:
    double Part(std::size_t series) const;
    double Whole() const;
    QString PercentText(std::size_t series) const;
    /// "Won : 12", in plain digits.
    QString LabelOf(std::size_t series) const;
    QString TextOf(std::size_t series) const;
    QRectF Ring(const QRectF& area) const;
    void DrawLegend(QPainter& painter, const QRectF& line) const;
};

}  // namespace varnello
