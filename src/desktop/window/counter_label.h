#pragma once

#include <QLabel>
#include <QMenuBar>
#include <array>

#include "engine/flow/counters.h"

namespace varnello {

/// The counters at the right end of the menu bar, as if they stood in it: on the baseline of its
/// captions, with digits of one width so that nothing jumps, and no wider than they need.
class CounterLabel : public QLabel {
    Q_OBJECT

public:
    /// A child of the bar and its corner widget.
    explicit CounterLabel(QMenuBar& bar);

    void ShowCounters(const CounterCaptions& captions);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// One counter, and the digits that it has had; it keeps the room for them.
    struct Counter {
        QString caption;
        int digits = 0;
    };

    int DigitWidth() const;
    /// Pixels that a text takes, at the digits' one width.
    int WidthOf(const QString& text) const;
    /// Pixels that a counter keeps; 0 for one that isn't shown.
    int RoomOf(const Counter& counter) const;
    void DrawCaption(QPainter& painter, QPoint at, const QString& caption) const;

    QMenuBar& bar_;
    std::array<Counter, 3> counters_;
};

}  // namespace varnello
