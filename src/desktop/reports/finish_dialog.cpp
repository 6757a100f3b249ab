#include "desktop/reports/finish_dialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/appearance/icons.h"
#include "desktop/platform/text.h"
#include "desktop/reports/report_charts.h"

namespace varnello {
namespace {

constexpr int kListWidth = 247;  // pixels
constexpr QSize kChartSize(330, 240);

/// A button that shows when it has the focus, and that Enter presses as Space does.
class CommandButton : public QToolButton {
protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        if (!hasFocus()) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    void keyPressEvent(QKeyEvent* event) override {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (!enter) return QToolButton::keyPressEvent(event);
        if (!event->isAutoRepeat()) click();
    }
};

}  // namespace

FinishDialog::FinishDialog(const FinishFigures& figures, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Congrats"));
    auto* all = new QVBoxLayout(this);
    all->addWidget(MakeToolbar());
    all->addWidget(MakeResult(figures));
    newGame_->setFocus();  // now that it stands in a window
}

QWidget* FinishDialog::MakeToolbar() {
    auto* strip = new QWidget;
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(0, 0, 0, 0);
    const auto button = [&](const char* icon, const char* caption) {
        auto* made = new CommandButton;
        made->setIcon(SmallIcon(QString::fromLatin1(icon)));
        made->setText(QString::fromLatin1(caption));
        made->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        made->setAutoRaise(true);
        made->setFocusPolicy(Qt::StrongFocus);
        made->setMinimumWidth(84);
        row->addWidget(made);
        return made;
    };
    const auto choose = [&](QToolButton* made, FinishChoice choice) {
        connect(made, &QToolButton::clicked, this, [this, choice] {
            choice_ = choice;
            accept();
        });
    };
    newGame_ = button("new", "New Game");
    choose(newGame_, FinishChoice::NewGame);
    choose(button("select", "Select Game"), FinishChoice::SelectGame);
    choose(button("restart", "Restart Game"), FinishChoice::RestartGame);
    connect(button("statistics", "Statistics"), &QToolButton::clicked, this,
            &FinishDialog::StatisticsAsked);
    connect(button("highscore", "High Score"), &QToolButton::clicked, this,
            &FinishDialog::HighScoreAsked);
    choose(button("close", "Close"), FinishChoice::Close);
    row->addStretch();
    return strip;
}

QWidget* FinishDialog::MakeResult(const FinishFigures& figures) {
    auto* frame = new QGroupBox(ToQt(figures.Game));
    auto* row = new QHBoxLayout(frame);

    auto* list = new QListWidget;
    for (const std::string& line : figures.Lines) list->addItem(ToQt(line));
    list->setFixedWidth(kListWidth);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setSpacing(3);
    list->setAccessibleName(QStringLiteral("Result"));
    row->addWidget(list);

    Chart* chFin = MakeChart(ChartKind::Totals, QStringLiteral("Score, moves and time as columns"));
    chFin->setMinimumSize(kChartSize);
    ShowTotals(*chFin, figures.Score, figures.Moves, figures.Time);
    row->addWidget(chFin);
    return frame;
}

}  // namespace varnello
