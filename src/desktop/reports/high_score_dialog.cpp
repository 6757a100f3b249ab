#include "desktop/reports/high_score_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/accessible/label.h"
#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "engine/reports/high_scores.h"

namespace varnello {
namespace {

constexpr QSize kSize(1000, 620);

struct Ranking {
    const char* text;
    FinishedBy by;
    RecordField field;
};
constexpr std::array kRankings{Ranking{"Score", FinishedBy::Score, RecordField::Score},
                               Ranking{"Moves", FinishedBy::Moves, RecordField::Moves},
                               Ranking{"Time", FinishedBy::Time, RecordField::Time}};

int ColumnOf(RecordFields fields, RecordField field) {
    return static_cast<int>(std::find(fields.begin(), fields.end(), field) - fields.begin());
}

/// A list whose column of scores is bold.
RowsModel* NewModel(RecordFields fields) {
    auto* model = new RowsModel(ColumnsOf(fields));
    model->SetBoldColumn(ColumnOf(fields, RecordField::Score));
    return model;
}

}  // namespace

HighScoreDialog::HighScoreDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      SSTab1_(new QTabWidget),
      lvTop_(NewModel(kTopFields)),
      lvGames_(NewModel(kTopOfGameFields)),
      lvPlayer_(NewModel(kTopOfPlayerFields)),
      lvFin_(NewModel(kFinishedFields)),
      imcGames_(new QComboBox),
      imcPlayer_(new QComboBox),
      imcFin_(new QComboBox) {
    setWindowTitle(QStringLiteral("High Score"));
    setWindowIcon(SmallIcon(QStringLiteral("highscore")));
    FillGames(*imcGames_, engine.data(), engine.data().CurGName());
    FillPlayers(*imcPlayer_, engine.data());
    for (const Ranking& ranking : kRankings) imcFin_->addItem(QString::fromLatin1(ranking.text));
    NamePurpose(*imcGames_, QStringLiteral("Game"));
    NamePurpose(*imcPlayer_, QStringLiteral("Player"));
    NamePurpose(*imcFin_, QStringLiteral("Ranked by"));

    SSTab1_->addTab(MakeSheet(nullptr, lvTop_, QStringLiteral("Top games")),
                    QStringLiteral("Top Games"));
    SSTab1_->addTab(MakeSheet(imcGames_, lvGames_, QStringLiteral("Best of the game")),
                    QStringLiteral("Game-wise"));
    SSTab1_->addTab(MakeSheet(imcPlayer_, lvPlayer_, QStringLiteral("Best of the player")),
                    QStringLiteral("Player-wise"));
    SSTab1_->addTab(MakeSheet(imcFin_, lvFin_, QStringLiteral("Best won games")),
                    QStringLiteral("Finished Games"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1_);
    all->addWidget(buttons);
    resize(kSize);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(imcGames_, &QComboBox::activated, this, &HighScoreDialog::FillGame);
    connect(imcPlayer_, &QComboBox::activated, this, &HighScoreDialog::FillPlayer);
    connect(imcFin_, &QComboBox::activated, this, &HighScoreDialog::FillFinished);

    engine_.results().OpenScores();
    lvTop_->SetRows(TopRows(engine_.score(), engine_.dates()));
    FillGame();
    FillPlayer();
    FillFinished();
}

HighScoreDialog::~HighScoreDialog() { engine_.score().CloseScore(); }

QWidget* HighScoreDialog::MakeSheet(QComboBox* filter, RowsModel* model, const QString& name) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    if (filter) {
        auto* row = new QHBoxLayout;
        row->addWidget(filter);
        row->addStretch();
        column->addLayout(row);
    }
    column->addWidget(new ReportView(model, name));
    return page;
}

void HighScoreDialog::FillGame() {
    lvGames_->SetRows(
        TopRowsOfGame(engine_.score(), imcGames_->currentText().toStdString(), engine_.dates()));
}

void HighScoreDialog::FillPlayer() {
    lvPlayer_->SetRows(
        TopRowsOfPlayer(engine_.score(), imcPlayer_->currentText().toStdString(), engine_.dates()));
}

void HighScoreDialog::FillFinished() {
    const Ranking& ranking = kRankings[static_cast<std::size_t>(imcFin_->currentIndex())];
    lvFin_->SetBoldColumn(ColumnOf(kFinishedFields, ranking.field));
    lvFin_->SetRows(FinishedRows(engine_.score(), ranking.by, engine_.dates()));
}

}  // namespace varnello
