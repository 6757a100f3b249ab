#include "desktop/reports/high_score_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/accessible/label.h"
#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"
#include "desktop/platform/words.h"
#include "engine/reports/wins.h"

namespace varnello {
namespace {

constexpr QSize kSize(1000, 620);

struct Order {
    FinishedBy by;
    RecordColumn column;
};
constexpr std::array kOrders{Order{FinishedBy::Score, columns::Score},
                             Order{FinishedBy::Moves, columns::Moves},
                             Order{FinishedBy::Time, columns::Time}};

int ColumnOf(RecordColumns columns, RecordField field) {
    return static_cast<int>(PlaceOf(field, columns));
}

}  // namespace

HighScoreDialog::HighScoreDialog(Engine& engine, bool won, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      SSTab1_(new QTabWidget),
      lvTop_(NewSheet(kTopColumns, tr("Top games"))),
      lvGames_(NewSheet(kTopOfGameColumns, tr("Best of the game"))),
      lvPlayer_(NewSheet(kTopOfPlayerColumns, tr("Best of the player"))),
      lvFin_(NewSheet(kFinishedColumns, tr("Best won games"))),
      imcGames_(new QComboBox),
      imcPlayer_(new QComboBox),
      imcFin_(new QComboBox) {
    setWindowTitle(tr("High Score"));
    setWindowIcon(SmallIcon(QStringLiteral("highscore")));
    FillGames(*imcGames_, engine.data(), engine.data().CurGName());
    FillPlayers(*imcPlayer_, engine.data());
    for (const Order& order : kOrders) imcFin_->addItem(Localized(order.column.Title));
    NamePurpose(*imcGames_, tr("Game"));
    NamePurpose(*imcPlayer_, tr("Player"));
    NamePurpose(*imcFin_, tr("Ranked by"));

    SSTab1_->addTab(MakePage(nullptr, lvTop_), tr("Top Games"));
    SSTab1_->addTab(MakePage(imcGames_, lvGames_), tr("Game-wise"));
    SSTab1_->addTab(MakePage(imcPlayer_, lvPlayer_), tr("Player-wise"));
    SSTab1_->addTab(MakePage(imcFin_, lvFin_), tr("Finished Games"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1_);
    all->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(imcGames_, &QComboBox::activated, this, &HighScoreDialog::FillGame);
    connect(imcPlayer_, &QComboBox::activated, this, &HighScoreDialog::FillPlayer);
    connect(imcFin_, &QComboBox::activated, this, &HighScoreDialog::FillFinished);

    if (won)
        marked_ = FindBooked(engine_.score().List(), engine_.score().CurrentGame(Outcome::Won));
    Show(lvTop_, TopRows(engine_.score(), engine_.dates()));
    FillGame();
    FillPlayer();
    FillFinished();
    auto* memory = new WindowMemory(this, engine_.data().Store(), "HighScore", kSize);
    memory->Keep(SSTab1_);
    lvTop_.view->Remember(*memory, "top");
    lvGames_.view->Remember(*memory, "games");
    lvPlayer_.view->Remember(*memory, "players");
    lvFin_.view->Remember(*memory, "finished");
}

HighScoreDialog::~HighScoreDialog() { engine_.score().CloseScore(); }

HighScoreDialog::Sheet HighScoreDialog::NewSheet(RecordColumns columns, const QString& name) {
    auto* model = new RowsModel(ColumnsOf(columns));
    model->SetBoldColumn(ColumnOf(columns, RecordField::Score));
    auto* view = new ReportView(model, name);
    view->SetEmptyText(tr("No game has made it onto this list yet."));
    connect(view, &ReportView::DealAsked, this, &HighScoreDialog::DealAsked);
    return {model, view, {}};
}

QWidget* HighScoreDialog::MakePage(QComboBox* filter, const Sheet& sheet) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    if (filter) {
        auto* row = new QHBoxLayout;
        row->addWidget(filter);
        row->addStretch();
        column->addLayout(row);
    }
    column->addWidget(sheet.view);
    return page;
}

void HighScoreDialog::Show(Sheet& sheet, Ranking ranking) {
    sheet.model->SetRows(std::move(ranking.Rows));
    sheet.positions = std::move(ranking.Positions);
    sheet.view->OfferDeals([this, &sheet](int row) -> std::optional<GameChoice> {
        const ScoreList& list = engine_.score().List();
        const CompactScore& score = list.At(sheet.positions.at(static_cast<std::size_t>(row)));
        return GameChoice{.Game = list.GameOf(score), .Number = list.NumberOf(score)};
    });
    const auto mark = marked_ ? std::find(sheet.positions.begin(), sheet.positions.end(), *marked_)
                              : sheet.positions.end();
    if (mark == sheet.positions.end()) return;
    sheet.view->ShowRow(static_cast<int>(mark - sheet.positions.begin()));
}

void HighScoreDialog::FillGame() {
    Show(lvGames_,
         TopRowsOfGame(engine_.score(), imcGames_->currentText().toStdString(), engine_.dates()));
}

void HighScoreDialog::FillPlayer() {
    Show(lvPlayer_, TopRowsOfPlayer(engine_.score(), imcPlayer_->currentText().toStdString(),
                                    engine_.dates()));
}

void HighScoreDialog::FillFinished() {
    const Order& order = kOrders[static_cast<std::size_t>(imcFin_->currentIndex())];
    lvFin_.model->SetBoldColumn(ColumnOf(kFinishedColumns, order.column.Field));
    Show(lvFin_, FinishedRows(engine_.score(), order.by, engine_.dates()));
}

}  // namespace varnello
