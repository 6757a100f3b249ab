#include "desktop/reports/game_stat_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/accessible/label.h"
#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/questions.h"
#include "desktop/platform/text.h"

namespace varnello {
namespace {

constexpr QSize kSize(900, 680);
constexpr int kGeneralWidth = 270;  // pixels
constexpr int kDateWidth = 300;

std::vector<Column> PeriodColumns() {
    return {{"Day", ColumnKind::Label}, {"Played", ColumnKind::Value}, {"Won", ColumnKind::Value}};
}

template <std::size_t N>
RowsModel* NewModel(const std::array<Column, N>& columns) {
    return new RowsModel({columns.begin(), columns.end()});
}

/// Two charts side by side, the wider one at the right.
QHBoxLayout* Beside(QWidget* left, QWidget* right) {
    auto* row = new QHBoxLayout;
    row->addWidget(left, 2);
    row->addWidget(right, 3);
    return row;
}

QHBoxLayout* AtLeft(QWidget* combo) {
    auto* row = new QHBoxLayout;
    row->addWidget(combo);
    row->addStretch();
    return row;
}

}  // namespace

GameStatDialog::GameStatDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      SSTab1_(new QTabWidget),
      lvGeneral_(new QListWidget),
      lvGames_(NewModel(kGameColumns)),
      lvDate_(new RowsModel(PeriodColumns())),
      lvPlayer_(NewModel(kPlayerColumns)),
      imcGames_(new QComboBox),
      imcDate_(new QComboBox),
      imcPlayer_(new QComboBox),
      chGen_(MakeChart(ChartKind::Share, QStringLiteral("Games won and lost"))),
      chGen1_(MakeChart(ChartKind::Totals, QStringLiteral("Total score, moves and time"))),
      chGames_(MakeChart(ChartKind::Share, QStringLiteral("Won and lost of the game"))),
      chGames1_(MakeChart(ChartKind::Rows, QStringLiteral("The first games one by one"))),
      chDate_(MakeChart(ChartKind::Rows, QStringLiteral("Played and won over time"))),
      chDate1_(MakeChart(ChartKind::Rows, QStringLiteral("Score, moves and time over time"))),
      chPlayer_(MakeChart(ChartKind::Share, QStringLiteral("Won and lost of the player"))),
      chPlayer1_(
          MakeChart(ChartKind::Totals, QStringLiteral("Score, moves and time of the player"))) {
    setWindowTitle(QStringLiteral("Game Statistics"));
    setWindowIcon(SmallIcon(QStringLiteral("statistics")));
    SSTab1_->addTab(MakeGeneral(), QStringLiteral("General Summary"));
    SSTab1_->addTab(MakeGames(), QStringLiteral("Game-wise"));
    SSTab1_->addTab(MakeDates(), QStringLiteral("Date-wise"));
    SSTab1_->addTab(MakePlayers(), QStringLiteral("Player-wise"));
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1_);
    all->addWidget(MakeButtons());
    resize(kSize);
    engine_.results().OpenScores();
    Fill();
}

GameStatDialog::~GameStatDialog() { engine_.score().CloseScore(); }

QWidget* GameStatDialog::MakeGeneral() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    lvGeneral_->setFixedWidth(kGeneralWidth);
    lvGeneral_->setSpacing(5);
    lvGeneral_->setAccessibleName(QStringLiteral("General summary"));
    auto* charts = new QVBoxLayout;
    charts->addWidget(chGen_);
    charts->addWidget(chGen1_);
    row->addWidget(lvGeneral_);
    row->addLayout(charts);
    return page;
}

QWidget* GameStatDialog::MakeGames() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    lvGames_->SetIcon(SmallIcon(QStringLiteral("game")));
    FillGames(*imcGames_, engine_.data(), engine_.data().CurGName());
    NamePurpose(*imcGames_, QStringLiteral("Game shown in the charts"));
    connect(imcGames_, &QComboBox::activated, this, &GameStatDialog::ShowGame);
    column->addWidget(new ReportView(lvGames_, QStringLiteral("Games")), 1);
    column->addLayout(AtLeft(imcGames_));
    column->addLayout(Beside(chGames_, chGames1_), 1);
    return page;
}

QWidget* GameStatDialog::MakeDates() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    for (const PeriodChoice& choice : PeriodChoices()) imcDate_->addItem(ToQt(choice.Text));
    NamePurpose(*imcDate_, QStringLiteral("Time shown"));
    connect(imcDate_, &QComboBox::activated, this, &GameStatDialog::ShowPeriods);
    auto* list = new ReportView(lvDate_, QStringLiteral("Days, months or years"));
    list->setFixedWidth(kDateWidth);
    auto* left = new QVBoxLayout;
    left->addWidget(imcDate_);
    left->addWidget(list);
    auto* charts = new QVBoxLayout;
    charts->addWidget(chDate_);
    charts->addWidget(chDate1_);
    row->addLayout(left);
    row->addLayout(charts, 1);
    return page;
}

QWidget* GameStatDialog::MakePlayers() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    lvPlayer_->SetIcon(SmallIcon(QStringLiteral("player")));
    FillPlayers(*imcPlayer_, engine_.data());
    NamePurpose(*imcPlayer_, QStringLiteral("Player shown in the charts"));
    connect(imcPlayer_, &QComboBox::activated, this, &GameStatDialog::ShowPlayer);
    column->addWidget(new ReportView(lvPlayer_, QStringLiteral("Players")), 1);
    column->addLayout(AtLeft(imcPlayer_));
    column->addLayout(Beside(chPlayer_, chPlayer1_), 1);
    return page;
}

QWidget* GameStatDialog::MakeButtons() {
    auto* buttons = new QDialogButtonBox;
    auto* cmdClear =
        buttons->addButton(QStringLiteral("Clear Statistics"), QDialogButtonBox::ActionRole);
    auto* cmdExport =
        buttons->addButton(QStringLiteral("Export Statistics"), QDialogButtonBox::ActionRole);
    auto* cmdClose = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    cmdClear->setAutoDefault(false);
    cmdExport->setAutoDefault(false);
    cmdClose->setDefault(true);
    // The figures stay as they are until the window opens again.
    connect(cmdClear, &QPushButton::clicked, this, [this] {
        if (AskYesNo(this, kClearStatQuestion)) engine_.results().ClearStat();
    });
    connect(cmdExport, &QPushButton::clicked, this, &GameStatDialog::Export);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void GameStatDialog::Fill() {
    FillGeneral();
    lvGames_->SetRows(GameRows(engine_.score(), engine_.data()));
    ShowGame();
    ShowPeriods();
    lvPlayer_->SetRows(PlayerRows(engine_.score(), engine_.data()));
    ShowPlayer();
}

void GameStatDialog::FillGeneral() {
    const ScoreSummary summary = engine_.score().AllSummary();
    lvGeneral_->clear();
    for (const std::string& line : GeneralLines(summary)) lvGeneral_->addItem(ToQt(line));
    ShowShare(*chGen_, summary);
    ShowTotals(*chGen1_, summary.Score, summary.Moves, summary.Time);
}

void GameStatDialog::ShowGame() {
    const std::string game = imcGames_->currentText().toStdString();
    ShowShare(*chGames_, engine_.score().GameSummary(game));
    ShowFigures(*chGames1_, FirstGames(engine_.score(), game));
}

void GameStatDialog::ShowPeriods() {
    const auto choice = PeriodChoices()[static_cast<std::size_t>(imcDate_->currentIndex())];
    const auto periods = PeriodRows(engine_.score(), choice, engine_.Now());
    ChartTable played{
        .labels = {QStringLiteral("Played"), QStringLiteral("Won")}, .rows = {}, .rowNames = {}};
    std::vector<GameFigures> figures;
    for (const PeriodSummary& period : periods) {
        played.rows.append({double(period.Played), double(period.Won)});
        played.rowNames << ToQt(period.Label);
        figures.push_back({period.Score, period.Moves, period.Time});
    }
    lvDate_->SetRows(PeriodLines(periods));
    lvDate_->SetTitle(0, choice.Heading);
    chDate_->Show(played);
    ShowFigures(*chDate1_, figures, played.rowNames);
}

void GameStatDialog::ShowPlayer() {
    const ScoreSummary summary =
        engine_.score().PlayerSummary(imcPlayer_->currentText().toStdString());
    ShowShare(*chPlayer_, summary);
    ShowTotals(*chPlayer1_, summary.Score, summary.Moves, summary.Time);
}

void GameStatDialog::Export() {
    const auto file = AskForReportFile(this);
    if (!file) return;
    engine_.results().ExportStat(*file);
    engine_.results().OpenScores();  // the export has closed the list
    Fill();
}

}  // namespace varnello
