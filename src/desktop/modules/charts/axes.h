#pragma once

#include <QAbstractAxis>
#include <QChart>
#include <QWidget>

#include "desktop/modules/charts/scale.h"

namespace varnello {

/// The scale for values on an axis of this height in pixels, with marks at a readable distance.
Scale ScaleFor(double lowest, double highest, int height, const QWidget& look);

/// The width in pixels that the texts of an axis of values take, with their distance from the axis.
int WidthOf(const Scale& scale, const QWidget& look);

/// Adds a vertical axis of values, in the widget's font and colours, for all series of a chart of
/// this width in pixels. The margins must be set.
void AddValueAxis(QChart& chart, const Scale& scale, int width, const QWidget& look);

/// Adds a horizontal axis of names, likewise.
void AddNameAxis(QChart& chart, QAbstractAxis* axis, const QWidget& look);

}  // namespace varnello
