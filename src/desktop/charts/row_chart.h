#pragma once

#include "desktop/charts/chart.h"
#include "desktop/charts/scale.h"

namespace varnello {

/// A line for each series over all rows: small charts below one another over a shared axis, each
/// with a scale of its own. Counts of games share one.
class RowChart : public Chart {
public:
    using Chart::Chart;

protected:
    void Draw(QPainter& painter, const QRectF& area) const override;
    QString TipAt(const QPointF& at) const override;
    QString Figures() const override;

private:
    /// Where everything lies, in pixels of the widget.
    struct Layout {
        QRectF plots;               ///< what the small charts fill, without the axes
        double panel = 0;           ///< the height of one of them with its heading
        std::vector<Scale> scales;  ///< one a series
    };
    Layout LayOut(const QRectF& area) const;
    double RowAt(const Layout& layout, std::size_t row) const;

    void DrawRowNames(QPainter& painter, const Layout& layout) const;
    void DrawPanel(QPainter& painter, const Layout& layout, std::size_t series) const;
    void DrawScale(QPainter& painter, Series series, const Scale& scale, const QRectF& plot) const;
    /// A row's name, or its number where rows have none; empty for a row without a value.
    QString RowName(std::size_t row) const;
    bool HasValue(std::size_t row) const;
};

}  // namespace varnello
