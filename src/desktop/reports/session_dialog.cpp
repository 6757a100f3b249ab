#include "desktop/reports/session_dialog.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/appearance/game_mark.h"
#include "desktop/appearance/icons.h"
#include "desktop/charts/row_chart.h"
#include "desktop/charts/share_chart.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"
#include "desktop/platform/words.h"

namespace varnello {
namespace {

constexpr QSize kSize(880, 640);
constexpr int kLabelShown = 14;  // characters at least
constexpr int kTick = 500;       // milliseconds

/// Dark red for the running game; lighter where the list is dark.
QColor RunningColour(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(255, 138, 128) : QColor(120, 0, 0);
}

/// The columns of a list that a tick sets anew.
std::vector<std::size_t> Ticking(RecordColumns columns) {
    return {PlaceOf(RecordField::Time, columns), PlaceOf(RecordField::Score, columns)};
}

GameFigures RunningFigures(const cData& data) {
    return {data.CurScore, data.CurMoves, data.CurTime};
}

QLabel* AddLabel(QVBoxLayout* rows, const Phrase& text) {
    auto* label = new QLabel(Localized(text));
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * kLabelShown);
    label->setWordWrap(true);
    rows->addWidget(label);
    return label;
}

}  // namespace

SessionDialog::SessionDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      SSTab1_(new QTabWidget),
      lvSession_(new RowsModel(ColumnsOf(kSessionColumns))),
      lvSesChart_(new RowsModel(ColumnsOf(kDetailColumns))),
      sessionView_(new ReportView(lvSession_, tr("Games of this session"))),
      detailView_(new ReportView(lvSesChart_, tr("Games of this session by figures"))),
      chSummary_(new ShareChart(tr("Games won and lost"))),
      chChart_(new RowChart(tr("Score, moves and time game by game"))),
      running_(engine.data().GameRunning) {
    setWindowTitle(tr("Session Statistics"));
    setWindowIcon(SmallIcon(QStringLiteral("statistics")));
    SSTab1_->addTab(MakeSummary(), tr("Summary"));
    SSTab1_->addTab(MakeDetails(), tr("Session Details"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1_);
    all->addWidget(buttons);

    lvSession_->SetIcons([this](int row) { return GameMark(DealAt(row).Game); });
    sessionView_->setIconSize(kGameMarkSize);
    for (ReportView* view : {sessionView_, detailView_}) {
        view->SetEmptyText(tr("No game was played in this session yet."));
        view->OfferDeals([this](int row) -> std::optional<GameChoice> { return DealAt(row); });
        connect(view, &ReportView::DealAsked, this, &SessionDialog::DealAsked);
    }
    if (running_) {
        lvSession_->SetColouredRow(engine.score().SesTop(), RunningColour(palette()));
        lvSesChart_->SetColouredRow(engine.score().SesTop(), RunningColour(palette()));
    }
    lvSession_->SetRows(SessionRows(engine, kSessionColumns));
    lvSesChart_->SetRows(SessionRows(engine, kDetailColumns));
    chSummary_->Show(ShareTable(engine.score().SesSummary()));
    FillTable();
    ShowChart();
    auto* memory = new WindowMemory(this, engine_.data().Store(), "SessionStatistics", kSize);
    memory->Keep(SSTab1_);
    sessionView_->Remember(*memory, "session");
    detailView_->Remember(*memory, "details");
    if (running_) {
        sessionView_->ShowRow(engine.score().SesTop(), false);
        detailView_->ShowRow(engine.score().SesTop(), false);
    }
    connect(&Timer1_, &QTimer::timeout, this, &SessionDialog::Tick);
    Timer1_.start(kTick);
}

QWidget* SessionDialog::MakeThisSession() {
    auto* frame = new QGroupBox(tr("This Session"));
    auto* rows = new QVBoxLayout(frame);
    for (const Phrase& text : SessionLabelsOf(engine_).InOrder())
        lblSesElapsedTime_ = AddLabel(rows, text);
    rows->addStretch();
    return frame;
}

QWidget* SessionDialog::MakeThisGame() {
    auto* frame = new QGroupBox(tr("This Game"));
    auto* rows = new QVBoxLayout(frame);
    const GameLabels labels = GameLabelsOf(engine_);
    AddLabel(rows, labels.lblGameStarted);
    AddLabel(rows, labels.lblGameName);
    AddLabel(rows, labels.lblGameNo);
    lblGameScore_ = AddLabel(rows, labels.lblGameScore);
    AddLabel(rows, labels.lblGameMoves);
    lblGameTime_ = AddLabel(rows, labels.lblGameTime);
    AddLabel(rows, labels.lblPlayer);
    rows->addStretch();
    return frame;
}

QWidget* SessionDialog::MakeSummary() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* top = new QHBoxLayout;
    top->addWidget(MakeThisSession(), 1);
    top->addWidget(MakeThisGame(), 1);
    top->addWidget(chSummary_, 1);
    column->addLayout(top);
    column->addWidget(sessionView_, 1);
    return page;
}

QWidget* SessionDialog::MakeDetails() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    auto* cmdRefresh = new QPushButton(tr("Refresh Chart"));
    cmdRefresh->setAutoDefault(false);
    connect(cmdRefresh, &QPushButton::clicked, this, &SessionDialog::RefreshChart);
    auto* right = new QVBoxLayout;
    right->addWidget(chChart_, 1);
    right->addWidget(cmdRefresh, 0, Qt::AlignRight);
    row->addWidget(detailView_, 2);
    row->addLayout(right, 3);
    return page;
}

void SessionDialog::FillTable() {
    table_.clear();
    for (std::int16_t i = 1; i <= engine_.score().SesTop(); ++i) {
        const ScoreRecord game = engine_.score().GetSes(i);
        table_.push_back({game.Score, game.Moves, game.Time});
    }
    if (!running_) return;
    table_.push_back(RunningFigures(engine_.data()));
}

void SessionDialog::Tick() {
    lblSesElapsedTime_->setText(Localized(SessionElapsedLabel(engine_)));
    if (!running_ || !engine_.data().GameRunning) return;
    const int row = static_cast<int>(table_.size()) - 1;
    lvSession_->UpdateRow(row, RunningRow(engine_, kSessionColumns), Ticking(kSessionColumns));
    lvSesChart_->UpdateRow(row, RunningRow(engine_, kDetailColumns), Ticking(kDetailColumns));
    const GameLabels labels = GameLabelsOf(engine_);
    lblGameScore_->setText(Localized(labels.lblGameScore));
    lblGameTime_->setText(Localized(labels.lblGameTime));
}

void SessionDialog::RefreshChart() {
    if (!running_ || !engine_.data().GameRunning) return;
    table_.back() = RunningFigures(engine_.data());
    ShowChart();
}

void SessionDialog::ShowChart() {
    ChartTable table = FiguresTable(table_);
    if (!running_) table.rows.emplace_back();  // the place of the next game
    chChart_->Show(table);
}

GameChoice SessionDialog::DealAt(int row) const {
    const cScore& score = engine_.score();
    const bool ended = row < score.SesTop();
    const ScoreRecord game =
        ended ? score.GetSes(Narrow16(row + 1)) : score.CurrentGame(Outcome::NotWon);
    return {.Game = game.Game, .Number = game.GameNo};
}

}  // namespace varnello
