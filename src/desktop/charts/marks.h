#pragma once

#include <QPainter>

#include "desktop/charts/chart.h"
#include "desktop/charts/scale.h"

namespace varnello {

/// What the axis of a series counts.
ScaleUnit UnitOf(Series series);

/// The texts along a lying axis: each as near its place as there is room, none over another.
class AxisTexts {
public:
    AxisTexts(QPainter& painter, const QRectF& line) : painter_(painter), line_(line) {}

    /// Draws the text around `x`, unless it would touch one that stands already.
    void Draw(const QString& text, double x);

private:
    QPainter& painter_;
    QRectF line_;
    std::vector<QRectF> taken_;
};

/// A mark of a series around a point, `size` pixels across, filled with the painter's brush. Each
/// series has a shape of its own.
void DrawMark(QPainter& painter, Series series, const QPointF& at, double size);

}  // namespace varnello
