#pragma once

#include <QCoreApplication>
#include <QPainter>
#include <QStringList>
#include <QWidget>
#include <limits>
#include <vector>

namespace varnello {

/// What a series of a chart tells. A series has the same name, colour and mark in all windows.
enum class Series { Score, Moves, Time, Played, Won, Lost };

/// A value that a row doesn't have.
inline constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

/// A table of numbers for a chart.
struct ChartTable {
    std::vector<Series> series = {};
    std::vector<std::vector<double>> rows = {};  ///< a value a series; an empty row keeps its place
    int firstRow = 1;                            ///< the number of the first row
    QStringList rowNames = {};  ///< one a row, on the axis; when empty, rows go by their numbers
    QStringList rowTips = {};   ///< one a row, above the figures of its tip; when empty, the name
};

/// A painted chart with tool tips that follows the palette, the font and the pixels of its window.
/// It tells its figures as the accessible description.
class Chart : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Chart)

public:
    /// `name` is what assistive tools call it.
    explicit Chart(const QString& name);

    /// Shows a table instead of what was shown. A table without any value says that nothing was
    /// played.
    void Show(ChartTable table);

protected:
    /// The table to show, in which every row has a value or `kNoValue` for each series.
    const ChartTable& Table() const { return table_; }

    /// Draws the chart. The table has a value.
    virtual void Draw(QPainter& painter, const QRectF& area) const = 0;
    /// What there is to say at a point of the widget; may be empty.
    virtual QString TipAt(const QPointF& at) const = 0;
    /// All figures as a text.
    virtual QString Figures() const = 0;

    /// A value as it is shown: seconds as h:mm:ss, all else as the user's language writes it.
    QString ValueText(Series series, double value) const;
    /// "Moves : 1,234"
    QString NamedValue(Series series, double value) const;
    /// The texts of a row's values.
    QString ValuesText(std::size_t row, const QString& separator) const;
    /// What the chart is drawn into, within the frame.
    QRectF Area() const;
    /// A rectangle whose edges lie on the pixels of the screen.
    QRectF OnPixels(const QRectF& rect) const;

    QSize sizeHint() const override { return minimumSizeHint() * 1.5; }
    QSize minimumSizeHint() const override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void ShowTip(const QPoint& at, const QPoint& onScreen);

    ChartTable table_;
    bool blank_ = true;
};

QString NameOf(Series series);

}  // namespace varnello
