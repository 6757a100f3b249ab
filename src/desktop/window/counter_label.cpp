#include "desktop/window/counter_label.h"

#include <QApplication>
#include <QPainter>
#include <QResizeEvent>
#include <QStyle>
#include <algorithm>
#include <numeric>

#include "desktop/platform/words.h"

namespace varnello {
namespace {

constexpr int kGap = 18;         // pixels between two counters
constexpr int kMargin = 10;      // pixels before and after all of them
constexpr int kPadding = 4;      // above and below them
constexpr int kLeastDigits = 3;  // that score and moves have room for

int DigitsIn(const QString& text) {
    return static_cast<int>(
        std::count_if(text.begin(), text.end(), [](QChar letter) { return letter.isDigit(); }));
}

/// Calls `take` for each digit and for all that stands between two of them.
template <typename Take>
void ForEachPart(const QString& text, const Take& take) {
    qsizetype at = 0;
    while (at < text.size()) {
        qsizetype end = at;
        while (end < text.size() && !text[end].isDigit()) ++end;
        const bool digit = end == at;
        if (digit) ++end;
        take(text.mid(at, end - at), digit);
        at = end;
    }
}

}  // namespace

CounterLabel::CounterLabel(QMenuBar& bar) : QLabel(&bar), bar_(bar) {
    setTextFormat(Qt::PlainText);
    bar_.setCornerWidget(this, Qt::TopRightCorner);
}

void CounterLabel::ShowCounters(const CounterCaptions& captions) {
    const QSize before = sizeHint();
    const auto textOf = [](const std::optional<Phrase>& caption) {
        return caption ? Localized(*caption) : QString();
    };
    const std::array now{textOf(captions.mScore), textOf(captions.mTime), textOf(captions.mMoves)};
    QStringList shown;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const int digits = std::max({counters_[i].digits, DigitsIn(now[i]), kLeastDigits});
        counters_[i] = {now[i], now[i].isEmpty() ? 0 : digits};
        if (!now[i].isEmpty()) shown << now[i];
    }
    // What assistive tools read.
    setText(shown.join(QStringLiteral("  ")));
    if (sizeHint() == before) return;
    // A menu bar looks at its corners when it changes itself.
    QResizeEvent same(bar_.size(), bar_.size());
    QApplication::sendEvent(&bar_, &same);
}

int CounterLabel::DigitWidth() const {
    int widest = 0;
    for (const QChar digit : InDigits(QStringLiteral("0123456789"))) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(digit));
    }
    return widest;
}

int CounterLabel::WidthOf(const QString& text) const {
    int width = 0;
    ForEachPart(text, [&, digitWidth = DigitWidth()](const QString& part, bool digit) {
        width += digit ? digitWidth : fontMetrics().horizontalAdvance(part);
    });
    return width;
}

int CounterLabel::RoomOf(const Counter& counter) const {
    if (counter.caption.isEmpty()) return 0;
    return WidthOf(counter.caption) + (counter.digits - DigitsIn(counter.caption)) * DigitWidth() +
           kGap;
}

QSize CounterLabel::sizeHint() const {
    const int width =
        std::accumulate(counters_.begin(), counters_.end(), 0,
                        [this](int sum, const Counter& each) { return sum + RoomOf(each); });
    return {width == 0 ? 0 : width - kGap + 2 * kMargin, fontMetrics().height() + 2 * kPadding};
}

void CounterLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    // As a style puts a caption into its item.
    const QRect item = bar_.actionGeometry(bar_.actions().value(0));
    const QFontMetrics metrics = fontMetrics();
    const int top = item.top() + (item.height() - metrics.height()) / 2;
    const int baseline = top + metrics.ascent() - y();
    int left = kMargin;
    for (const Counter& counter : counters_) {
        const int room = RoomOf(counter);
        if (room == 0) continue;
        const QRect place(left, baseline - metrics.ascent(), room - kGap, metrics.height());
        DrawCaption(painter, QStyle::visualRect(layoutDirection(), rect(), place).topLeft(),
                    counter.caption);
        left += room;
    }
}

void CounterLabel::DrawCaption(QPainter& painter, QPoint at, const QString& caption) const {
    const int baseline = at.y() + fontMetrics().ascent();
    painter.setLayoutDirection(caption.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    if (caption.isRightToLeft()) {  // its parts don't stand in the order of the text
        painter.drawText(at.x(), baseline, caption);
        return;
    }
    int x = at.x();
    ForEachPart(caption, [&](const QString& part, bool digit) {
        const int advance = fontMetrics().horizontalAdvance(part);
        const int width = digit ? DigitWidth() : advance;
        painter.drawText(x + (width - advance) / 2, baseline, part);
        x += width;
    });
}

}  // namespace varnello
