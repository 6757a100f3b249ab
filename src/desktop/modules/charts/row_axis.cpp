#include "desktop/modules/charts/row_axis.h"

#include <algorithm>
#include <cmath>

namespace varnello {
namespace {

constexpr int kNameGap = 8;         // pixels between two names
constexpr double kLeastRoom = 6.0;  // pixels beside the first and the last row, for their marks

int WidestName(const ChartTable& table, const QFontMetrics& metrics) {
    int widest = 0;
    for (qsizetype row = 0; row < table.rows.size(); ++row) {
        widest = std::max(widest, metrics.horizontalAdvance(RowName(table, row)));
    }
    return widest;
}

/// The smallest of 1, 2, 5, 10, 20, 50 ... that is large enough.
qsizetype RoundStep(qsizetype least) {
    for (qsizetype power = 1;; power *= 10) {
        for (const qsizetype factor : {1, 2, 5}) {
            if (factor * power >= least) return factor * power;
        }
    }
}

/// Numbers are shown where they are round, names so that the last row has its own.
bool ShowsName(const ChartTable& table, qsizetype row, qsizetype step) {
    const qsizetype from = table.rowNames.isEmpty() ? row + 1 : table.rows.size() - 1 - row;
    return from % step == 0;
}

}  // namespace

RowSpread SpreadRows(const ChartTable& table, const QMargins& outside, int width,
                     const QFontMetrics& metrics) {
    const auto gaps = static_cast<double>(std::max<qsizetype>(table.rows.size() - 1, 1));
    const int widest = WidestName(table, metrics);
    const double halfRow = std::max(width / (gaps + 1) / 2, kLeastRoom);
    const double halfName = (widest + kNameGap) / 2.0;
    const double before = std::max(halfRow, halfName - outside.left());
    const double after = std::max(halfRow, halfName - outside.right());

    RowSpread spread;
    spread.distance = std::max((width - before - after) / gaps, 1.0);
    spread.before = before / spread.distance;
    spread.after = after / spread.distance;
    const auto least = static_cast<qsizetype>(std::ceil((widest + kNameGap) / spread.distance));
    spread.step = table.rowNames.isEmpty() ? RoundStep(least) : least;
    return spread;
}

QCategoryAxis* RowAxis(const ChartTable& table, const RowSpread& spread) {
    auto* axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setRange(-spread.before, static_cast<double>(table.rows.size() - 1) + spread.after);
    axis->setStartValue(-spread.before);
    for (qsizetype row = 0; row < table.rows.size(); ++row) {
        if (!ShowsName(table, row, spread.step)) continue;
        QString name = RowName(table, row);
        // The axis drops a name that it has already, so those that occur again look the same only.
        while (axis->categoriesLabels().contains(name)) name += QChar(0x200B);
        axis->append(name, static_cast<double>(row));
    }
    return axis;
}

}  // namespace varnello
