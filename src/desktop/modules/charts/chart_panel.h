#pragma once

#include <QChart>
#include <QLabel>
#include <QStackedLayout>

#include "desktop/modules/chart_module.h"

namespace varnello {

/// What the charts have in common: the view, its tool tips, and a quiet text while there is nothing
/// to show. A chart is built anew whenever its table, size, colours or font change, so what is
/// drawn never depends on what was drawn before.
class ChartPanel : public Chart {
public:
    explicit ChartPanel(QWidget* parent);

    void Show(const ChartTable& table) final;

protected:
    /// Pixels around all that is drawn.
    static constexpr QMargins kMargins{8, 8, 14, 6};

    /// The table to show: completed, and with a value that isn't 0, where the functions below are
    /// called.
    const ChartTable& Table() const { return table_; }

    /// Fills a chart for a view of this size in pixels.
    virtual void Draw(QChart& chart, const QSize& size) const = 0;
    /// What there is to say at a point of the drawn chart, in pixels of the view; may be empty.
    virtual QString TipAt(QChart& chart, const QPointF& at) const = 0;
    /// All figures as a text.
    virtual QString Figures() const = 0;

    void changeEvent(QEvent* event) override;

private:
    class View;

    void Redraw();

    ChartTable table_;
    QStackedLayout* sheets_;
    View* view_;
    QLabel* nothing_;
};

}  // namespace varnello
