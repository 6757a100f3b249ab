#include "desktop/reports/game_stat_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "desktop/accessible/label.h"
#include "desktop/appearance/game_mark.h"
#include "desktop/appearance/icons.h"
#include "desktop/charts/row_chart.h"
#include "desktop/charts/share_chart.h"
#include "desktop/charts/totals_chart.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/questions.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"
#include "desktop/platform/words.h"
#include "desktop/reports/scores_access.h"

namespace varnello {
namespace {

constexpr QSize kSize(900, 680);
constexpr int kGeneralWidth = 270;  // pixels
constexpr int kListRoom = 36;       // pixels for a list's frame, margins and scroll bar

QString Nothing() {
    return GameStatDialog::tr(
        "Nothing played yet. Finish your first game, and its story begins here.");
}

template <std::size_t N>
RowsModel* NewModel(const std::array<Column, N>& columns) {
    return new RowsModel({columns.begin(), columns.end()});
}

/// Two charts side by side, the wider one at the right.
ChartArea* Beside(Chart* left, Chart* right) {
    auto* row = new QHBoxLayout;
    row->addWidget(left, 2);
    row->addWidget(right, 3);
    return new ChartArea(row);
}

ChartArea* Below(Chart* upper, Chart* lower) {
    auto* column = new QVBoxLayout;
    column->addWidget(upper, 4);
    column->addWidget(lower, 5);
    return new ChartArea(column);
}

/// A quiet line below a list.
QLabel* Line() {
    auto* line = new QLabel;
    // However long a name is that was edited into the settings, the window stays as it is.
    line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    return line;
}

void Tell(QLabel& line, const std::string& player, const Streak& streak) {
    line.setText(GameStatDialog::tr("Won in a row by %1: %2 now, %3 at best")
                     .arg(ToQt(player), AsFigure(streak.Now), AsFigure(streak.Best)));
}

/// The charts show what a person chooses, by the combo or by the row of the same place in the list.
void ChooseBy(ReportView& list, QComboBox& combo, const std::function<void()>& show) {
    QObject::connect(&combo, &QComboBox::activated, &list, show);
    QObject::connect(list.selectionModel(), &QItemSelectionModel::currentRowChanged, &combo,
                     [&list, &combo, show] {
                         if (list.CurrentRow() < 0) return;
                         combo.setCurrentIndex(list.CurrentRow());
                         show();
                     });
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
      lvDate_(NewModel(PeriodColumns(PeriodChoices().front()))),
      lvPlayer_(NewModel(kPlayerColumns)),
      gamesView_(new ReportView(lvGames_, tr("Games"))),
      playersView_(new ReportView(lvPlayer_, tr("Players"))),
      imcGames_(new QComboBox),
      imcDate_(new QComboBox),
      imcPlayer_(new QComboBox),
      chGen_(new ShareChart(tr("Games won and lost"))),
      chGen1_(new TotalsChart(tr("Total score, moves and time"))),
      chGames_(new ShareChart(tr("Won and lost of the game"))),
      chGames1_(new RowChart(tr("The first games one by one"))),
      chDate_(new RowChart(tr("Played and won over time"))),
      chDate1_(new RowChart(tr("Score, moves and time over time"))),
      chPlayer_(new ShareChart(tr("Won and lost of the player"))),
      chPlayer1_(new TotalsChart(tr("Score, moves and time of the player"))),
      generalCharts_(Below(chGen_, chGen1_)),
      gameCharts_(Beside(chGames_, chGames1_)),
      dateCharts_(Below(chDate_, chDate1_)),
      playerCharts_(Beside(chPlayer_, chPlayer1_)),
      generalStreak_(Line()),
      gameStreak_(Line()),
      playerStreak_(Line()) {
    setWindowTitle(tr("Game Statistics"));
    setWindowIcon(SmallIcon(QStringLiteral("statistics")));
    SSTab1_->addTab(MakeGeneral(), tr("General Summary"));
    SSTab1_->addTab(MakeGames(), tr("Game-wise"));
    SSTab1_->addTab(MakeDates(), tr("Date-wise"));
    SSTab1_->addTab(MakePlayers(), tr("Player-wise"));
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1_);
    all->addWidget(MakeButtons());

    FillGeneral();
    lvGames_->SetRows(GameRows(engine_.score(), engine_.data()));
    lvPlayer_->SetRows(PlayerRows(engine_.score(), engine_.data()));
    auto* memory = new WindowMemory(this, engine_.data().Store(), "GameStatistics", kSize);
    memory->Keep(SSTab1_);
    gamesView_->Remember(*memory, "games");
    playersView_->Remember(*memory, "players");
    ShowGame();
    ShowPeriods();
    ShowPlayer();
}

GameStatDialog::~GameStatDialog() { engine_.score().CloseScore(); }

QWidget* GameStatDialog::MakeGeneral() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    lvGeneral_->setSpacing(5);
    lvGeneral_->setAccessibleName(tr("General summary"));
    auto* left = new QVBoxLayout;
    left->addWidget(lvGeneral_);
    left->addWidget(generalStreak_);
    row->addLayout(left);
    row->addWidget(generalCharts_, 1);
    return page;
}

QWidget* GameStatDialog::MakeGames() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    lvGames_->SetIcons(
        [this](int row) { return GameMark(engine_.data().GetGName(Narrow16(row + 1))); });
    gamesView_->setIconSize(kGameMarkSize);
    FillGames(*imcGames_, engine_.data(), engine_.data().CurGName());
    NamePurpose(*imcGames_, tr("Game shown in the charts"));
    ChooseBy(*gamesView_, *imcGames_, [this] { ShowGame(); });
    column->addWidget(gamesView_, 1);
    column->addWidget(gameStreak_);
    column->addLayout(AtLeft(imcGames_));
    column->addWidget(gameCharts_, 1);
    return page;
}

QWidget* GameStatDialog::MakeDates() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    for (const PeriodChoice& choice : PeriodChoices()) imcDate_->addItem(Localized(choice.Text));
    NamePurpose(*imcDate_, tr("Time shown"));
    connect(imcDate_, &QComboBox::activated, this, &GameStatDialog::ShowPeriods);
    auto* list = new ReportView(lvDate_, tr("Days, months or years"));
    auto* left = new QVBoxLayout;
    left->addWidget(imcDate_);
    left->addWidget(list);
    row->addLayout(left, 1);
    row->addWidget(dateCharts_, 2);
    return page;
}

QWidget* GameStatDialog::MakePlayers() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    lvPlayer_->SetIcons([](int) { return SmallIcon(QStringLiteral("player")); });
    FillPlayers(*imcPlayer_, engine_.data());
    NamePurpose(*imcPlayer_, tr("Player shown in the charts"));
    ChooseBy(*playersView_, *imcPlayer_, [this] { ShowPlayer(); });
    column->addWidget(playersView_, 1);
    column->addWidget(playerStreak_);
    column->addLayout(AtLeft(imcPlayer_));
    column->addWidget(playerCharts_, 1);
    return page;
}

QWidget* GameStatDialog::MakeButtons() {
    auto* buttons = new QDialogButtonBox;
    auto* cmdClear = buttons->addButton(tr("Clear Statistics"), QDialogButtonBox::ActionRole);
    auto* cmdExport = buttons->addButton(tr("Export Statistics"), QDialogButtonBox::ActionRole);
    auto* cmdClose = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    cmdClear->setAutoDefault(false);
    cmdExport->setAutoDefault(false);
    cmdClose->setDefault(true);
    // The figures stay as they are until the window opens again.
    connect(cmdClear, &QPushButton::clicked, this, [this] {
        if (AskYesNo(this, kClearStatQuestion)) engine_.results().ClearStat();
    });
    connect(cmdExport, &QPushButton::clicked, this, [this] { ExportScores(engine_, this); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void GameStatDialog::FillGeneral() {
    const ScoreSummary summary = engine_.score().AllSummary();
    lvGeneral_->clear();
    for (const Phrase& line : GeneralLines(summary)) lvGeneral_->addItem(Localized(line));
    lvGeneral_->setFixedWidth(
        std::max(kGeneralWidth, lvGeneral_->sizeHintForColumn(0) + kListRoom));
    chGen_->Show(ShareTable(summary));
    chGen1_->Show(TotalsTable(summary));
    generalCharts_->Say(summary.Played > 0 ? QString() : Nothing());
    const std::string player = engine_.data().CurPlayer();
    Tell(*generalStreak_, player, engine_.score().PlayerStreak(player));
}

void GameStatDialog::ShowGame() {
    const std::string game = imcGames_->currentText().toStdString();
    const ScoreSummary summary = engine_.score().GameSummary(game);
    chGames_->Show(ShareTable(summary));
    std::vector<GameFigures> figures{{}};
    QStringList tips{{}};
    for (const ScoreRecord& record : FirstGames(engine_.score(), game)) {
        figures.push_back({record.Score, record.Moves, record.Time});
        const auto moment = ParseDateText(record.Date);
        const std::string date = moment ? engine_.dates().DateAndTime(*moment) : record.Date;
        tips << tr("%1\nGame %2, %3", "date, game number, player")
                    .arg(ToQt(date), ToQt(record.GameNo.Shown()), ToQt(record.Player));
    }
    ChartTable table = FiguresTable(figures);
    table.rows.front().clear();  // games count from 1
    table.firstRow = 0;
    table.rowTips = tips;
    chGames1_->Show(table);
    gameCharts_->Say(summary.Played > 0 ? QString()
                                        : tr("%1 is waiting for its first game.").arg(ToQt(game)));
    const std::string player = engine_.data().CurPlayer();
    const Streak streak = engine_.score().PlayerStreak(player, game);
    gameStreak_->setText(
        tr("%1 won in a row by %2: %3 now, %4 at best", "a game, a player, two numbers")
            .arg(ToQt(game), ToQt(player), AsFigure(streak.Now), AsFigure(streak.Best)));
    gamesView_->ShowRow(imcGames_->currentIndex());
}

void GameStatDialog::ShowPeriods() {
    const auto& choice = PeriodChoices()[static_cast<std::size_t>(imcDate_->currentIndex())];
    const auto periods = PeriodRows(engine_.score(), choice, engine_.Now());
    ChartTable played{.series = {Series::Played, Series::Won}};
    std::vector<GameFigures> figures;
    for (const PeriodSummary& period : periods) {
        played.rows.push_back({double(period.Played), double(period.Won)});
        played.rowNames << ToQt(period.Label);
        figures.push_back({period.Score, period.Moves, period.Time});
    }
    const auto columns = PeriodColumns(choice);
    lvDate_->SetRows({columns.begin(), columns.end()}, PeriodLines(periods));
    ChartTable sums = FiguresTable(figures);
    sums.rowNames = played.rowNames;
    const bool any = std::any_of(periods.begin(), periods.end(),
                                 [](const PeriodSummary& period) { return period.Played > 0; });
    dateCharts_->Say(any                               ? QString()
                     : engine_.score().ScoreTop() == 0 ? Nothing()
                                                       : tr("No game was finished in this time."));
    if (!any) played.rows = sums.rows = {};
    chDate_->Show(played);
    chDate1_->Show(sums);
}

void GameStatDialog::ShowPlayer() {
    const std::string player = imcPlayer_->currentText().toStdString();
    const ScoreSummary summary = engine_.score().PlayerSummary(player);
    chPlayer_->Show(ShareTable(summary));
    chPlayer1_->Show(TotalsTable(summary));
    playerCharts_->Say(summary.Played > 0 ? QString()
                                          : tr("%1 hasn't finished a game yet.").arg(ToQt(player)));
    Tell(*playerStreak_, player, engine_.score().PlayerStreak(player));
    playersView_->ShowRow(imcPlayer_->currentIndex());
}

}  // namespace varnello
