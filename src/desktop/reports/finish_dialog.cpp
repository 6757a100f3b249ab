#include "desktop/reports/finish_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "desktop/appearance/icons.h"
#include "desktop/appearance/pictures.h"
#include "desktop/charts/totals_chart.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_size.h"
#include "desktop/platform/words.h"
#include "desktop/reports/report_charts.h"

namespace varnello {
namespace {

constexpr int kListWidth = 247;  // pixels
constexpr int kListRoom = 18;    // pixels for a list's frame and margins
constexpr QSize kChartSize(330, 220);
constexpr int kLeastButton = 72;            // pixels
constexpr int kButtonGap = 10;              // about
constexpr double kPlaceSize = 1.25;         // of the dialog's font
constexpr double kCardScale = 1.5;          // of a card on the table
constexpr std::size_t kMostCompared = 200;  // earlier wins in the chart

/// One of the twelve court cards, another one for another deal.
QPixmap CourtCard(const FinishFigures& figures, double ratio) {
    const int draw = figures.Time + figures.Moves;
    constexpr int kJack = 11;
    const int suit = draw % 4;
    const int court = draw / 4 % 3;
    const CardPictures pictures(ratio * kCardScale);
    const CardPictures::Part part = pictures.MainPic(suit * kRanks + kJack + court);
    QPixmap card = QPixmap::fromImage(part.sheet->copy(part.rect));
    card.setDevicePixelRatio(ratio);
    return card;
}

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

FinishDialog::FinishDialog(const FinishFigures& figures, const OwnWins& wins, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(tr("Congrats"));
    auto* all = new QVBoxLayout(this);
    all->addWidget(MakeToolbar());
    all->addWidget(MakeResult(figures, wins));
    resize(BoundedByScreen(*this, sizeHint()));  // the toolkit would take two thirds of the screen
    newGame_->setFocus();                        // now that it stands in a window
}

QWidget* FinishDialog::MakeToolbar() {
    auto* strip = new QWidget;
    std::vector<QToolButton*> buttons;
    const auto button = [&](const char* icon, const QString& caption) {
        auto* made = new CommandButton;
        made->setIcon(SmallIcon(QString::fromLatin1(icon)));
        made->setText(caption);
        made->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        made->setAutoRaise(true);
        made->setFocusPolicy(Qt::StrongFocus);
        made->setMinimumWidth(std::max(kLeastButton, made->sizeHint().width()));
        buttons.push_back(made);
        return made;
    };
    const auto choose = [&](QToolButton* made, FinishChoice choice) {
        connect(made, &QToolButton::clicked, this, [this, choice] {
            choice_ = choice;
            accept();
        });
    };
    newGame_ = button("new", tr("New Game"));
    choose(newGame_, FinishChoice::NewGame);
    choose(button("select", tr("Select Game")), FinishChoice::SelectGame);
    choose(button("restart", tr("Restart Game")), FinishChoice::RestartGame);
    connect(button("statistics", tr("Statistics")), &QToolButton::clicked, this,
            &FinishDialog::StatisticsAsked);
    connect(button("highscore", tr("High Score")), &QToolButton::clicked, this,
            &FinishDialog::HighScoreAsked);
    choose(button("close", tr("Close")), FinishChoice::Close);
    int width = 0;
    for (const QToolButton* made : buttons) width += made->minimumWidth() + kButtonGap;
    // In one row, or in two where the screen is too narrow for it.
    const int most = BoundedByScreen(*this, {width, 1}).width() < width ? 3 : 6;
    auto* grid = new QGridLayout(strip);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < static_cast<int>(buttons.size()); ++i) {
        grid->addWidget(buttons[static_cast<std::size_t>(i)], i / most, i % most);
    }
    grid->setColumnStretch(most, 1);
    return strip;
}

QWidget* FinishDialog::MakeResult(const FinishFigures& figures, const OwnWins& wins) {
    auto* frame = new QGroupBox(ToQt(figures.Game));
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(16);

    auto* card = new QLabel;
    card->setPixmap(CourtCard(figures, devicePixelRatioF()));
    row->addWidget(card, 0, Qt::AlignCenter);

    auto* list = new QListWidget;
    for (const Phrase& line : figures.Lines) list->addItem(Localized(line));
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSpacing(3);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFocusPolicy(Qt::NoFocus);
    list->setAccessibleName(tr("Result"));
    list->setFixedWidth(std::max(kListWidth, list->sizeHintForColumn(0) + kListRoom));
    const int lines = static_cast<int>(figures.Lines.size());
    list->setFixedHeight(lines * (list->sizeHintForRow(0) + 2 * list->spacing()) +
                         2 * list->frameWidth());
    const auto wonPlace = PlaceText(wins);
    auto* place = new QLabel(wonPlace ? Localized(*wonPlace) : QString());
    QFont large = place->font();
    large.setPointSizeF(large.pointSizeF() * kPlaceSize);
    large.setBold(true);
    place->setFont(large);
    place->setAlignment(Qt::AlignCenter);
    place->setWordWrap(true);
    auto* told = new QVBoxLayout;
    told->addStretch();
    told->addWidget(list);
    if (!place->text().isEmpty()) {
        told->addSpacing(8);
        told->addWidget(place);
    }
    told->addStretch();
    row->addLayout(told);

    auto* chFin = new TotalsChart(tr("Score, moves and time"));
    chFin->setMinimumSize(kChartSize);
    ChartTable table = TotalsTable(
        {.Played = 1, .Score = figures.Score, .Moves = figures.Moves, .Time = figures.Time});
    const std::size_t first = wins.Others.size() - std::min(wins.Others.size(), kMostCompared);
    for (std::size_t i = first; i < wins.Others.size(); ++i) {
        const ScoreRecord& other = wins.Others[i];
        table.rows.push_back(TotalsRow({other.Score, other.Moves, other.Time}));
    }
    chFin->Show(table);
    row->addWidget(chFin, 1);
    return frame;
}

}  // namespace varnello
