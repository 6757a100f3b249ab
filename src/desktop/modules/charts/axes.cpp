#include "desktop/modules/charts/axes.h"

#include <QAbstractSeries>
#include <QFontMetrics>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "desktop/modules/charts/colours.h"
#include "desktop/modules/charts/table.h"

namespace varnello {
namespace {

constexpr int kTextDistance = 10;   // pixels between a text and the axis
constexpr double kMostWidth = 0.4;  // of a chart for an axis; wider texts reach into the margin
constexpr int kLinesPerStep = 3;    // lines of text from one mark to the next, at least

void Add(QChart& chart, QAbstractAxis* axis, Qt::Alignment side, const QWidget& look) {
    axis->setLabelsFont(look.font());
    axis->setLabelsColor(InkColour(look.palette()));
    axis->setTruncateLabels(false);
    axis->setGridLineColor(GridColour(look.palette()));
    axis->setLinePenColor(AxisColour(look.palette()));
    chart.addAxis(axis, side);
    for (QAbstractSeries* series : chart.series()) series->attachAxis(axis);
}

}  // namespace

Scale ScaleFor(double lowest, double highest, int height, const QWidget& look) {
    return RoundScale(lowest, highest, height / (kLinesPerStep * look.fontMetrics().height()));
}

int WidthOf(const Scale& scale, const QWidget& look) {
    const auto width = [&](double value) {
        return look.fontMetrics().horizontalAdvance(NumberText(value, look.locale()));
    };
    return kTextDistance + std::max(width(scale.low), width(scale.high));
}

void AddValueAxis(QChart& chart, const Scale& scale, int width, const QWidget& look) {
    auto* axis = new QValueAxis;
    axis->setRange(scale.low, scale.high);
    axis->setTickType(QValueAxis::TicksDynamic);
    axis->setTickAnchor(0);
    axis->setTickInterval(scale.step);
    axis->setLabelFormat(QStringLiteral("%.0f"));
    axis->setLineVisible(false);
    Add(chart, axis, Qt::AlignLeft, look);

    QMargins margins = chart.margins();
    const double most = kMostWidth * (width - margins.left() - margins.right());
    const double tooWide = WidthOf(scale, look) - most;
    margins.setLeft(margins.left() + std::max(0, static_cast<int>(std::ceil(tooWide))));
    chart.setMargins(margins);
}

void AddNameAxis(QChart& chart, QAbstractAxis* axis, const QWidget& look) {
    axis->setGridLineVisible(false);
    Add(chart, axis, Qt::AlignBottom, look);
}

}  // namespace varnello
