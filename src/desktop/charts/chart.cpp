#include "desktop/charts/chart.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/charts/colours.h"
#include "desktop/platform/words.h"
#include "engine/common/rounding.h"

namespace varnello {
namespace {

constexpr int kFrame = 2;          // pixels
constexpr int kMargin = 8;         // pixels within the frame
constexpr int kLeastLines = 7;     // of text that fit into the smallest chart
constexpr int kLeastLetters = 24;  // side by side
constexpr double kLimit = 1e15;    // up to which all whole numbers are exact

}  // namespace

QString NameOf(Series series) {
    switch (series) {
        case Series::Score: return Chart::tr("Score");
        case Series::Moves: return Chart::tr("Moves");
        case Series::Time: return Chart::tr("Time");
        case Series::Played: return Chart::tr("Played");
        case Series::Won: return Chart::tr("Won");
        case Series::Lost: break;
    }
    return Chart::tr("Lost");
}

Chart::Chart(const QString& name) {
    setAccessibleName(name);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Show({});
}

void Chart::Show(ChartTable table) {
    table_ = std::move(table);
    blank_ = true;
    for (std::vector<double>& row : table_.rows) {
        row.resize(table_.series.size(), kNoValue);
        for (double& value : row) {
            value = std::isfinite(value) ? std::clamp(value, -kLimit, kLimit) : kNoValue;
            if (!std::isnan(value)) blank_ = false;
        }
    }
    setAccessibleDescription(blank_ ? tr("Nothing played yet") : Figures());
    update();
}

QString Chart::ValueText(Series series, double value) const {
    if (series == Series::Time) return Localized(PhraseWord(Duration{RoundTo32(value)}));
    return locale().toString(value, 'f', 0);
}

QString Chart::NamedValue(Series series, double value) const {
    return tr("%1 : %2", "what is counted, its figure")
        .arg(NameOf(series), ValueText(series, value));
}

QString Chart::ValuesText(std::size_t row, const QString& separator) const {
    QStringList values;
    for (std::size_t i = 0; i < table_.series.size(); ++i) {
        const double value = table_.rows[row][i];
        if (!std::isnan(value)) values << NamedValue(table_.series[i], value);
    }
    return values.join(separator);
}

QRectF Chart::Area() const {
    constexpr int kAround = kFrame + kMargin;
    return QRectF(rect()).adjusted(kAround, kAround, -kAround, -kAround);
}

QRectF Chart::OnPixels(const QRectF& rect) const {
    const double ratio = devicePixelRatioF();
    const auto snapped = [&](double at) { return std::round(at * ratio) / ratio; };
    const auto size = [&](double length) { return std::max(snapped(length), 1 / ratio); };
    return {snapped(rect.left()), snapped(rect.top()), size(rect.width()), size(rect.height())};
}

QSize Chart::minimumSizeHint() const {
    return {kLeastLetters * fontMetrics().averageCharWidth(), kLeastLines * fontMetrics().height()};
}

void Chart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), PaperColour(palette()));
    QStyleOptionFrame frame;  // as around the lists beside it
    frame.initFrom(this);
    frame.frameShape = QFrame::StyledPanel;
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LeftToRight);  // scales go one way in all languages
    if (!blank_) return Draw(painter, Area());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(Area(), Qt::AlignCenter | Qt::TextWordWrap, accessibleDescription());
}

bool Chart::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        ShowTip(help->pos(), help->globalPos());
        return true;
    }
    if (event->type() == QEvent::MouseMove && QToolTip::isVisible()) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        ShowTip(mouse->pos(), mouse->globalPosition().toPoint());
    }
    return QWidget::event(event);
}

void Chart::ShowTip(const QPoint& at, const QPoint& onScreen) {
    QString tip = blank_ ? QString() : TipAt(at);
    if (Qt::mightBeRichText(tip)) {  // a player's name is never markup
        tip = tip.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br/>"));
    }
    QToolTip::showText(onScreen, tip, this);
}

}  // namespace varnello
