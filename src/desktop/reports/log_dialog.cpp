#include "desktop/reports/log_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/accessible/label.h"
#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"
#include "desktop/platform/words.h"
#include "engine/common/calendar.h"

namespace varnello {
namespace {

constexpr QSize kSize(1000, 620);

/// What a filter lets through; its first item stands for everything.
std::string Chosen(const QComboBox& combo) {
    return combo.currentIndex() == 0 ? std::string() : combo.currentText().toStdString();
}

}  // namespace

LogDialog::LogDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      imcPlayer_(new QComboBox),
      imcGames_(new QComboBox),
      imcDate_(new QComboBox),
      lvLog_(new LogModel(engine.score().List(), engine.dates(), this)),
      view_(new ReportView(lvLog_, tr("Log"))),
      totals_(new QLabel) {
    setWindowTitle(tr("Log Statistics"));
    setWindowIcon(SmallIcon(QStringLiteral("statistics")));
    FillPlayers(*imcPlayer_, engine.data());
    FillGames(*imcGames_, engine.data(), {});
    imcPlayer_->insertItem(0, SmallIcon(QStringLiteral("player")), tr("All Players"));
    imcGames_->insertItem(0, SmallIcon(QStringLiteral("games")), tr("All Games"));
    for (const AgeChoice& age : AgeChoices()) imcDate_->addItem(Localized(age.Text));
    imcPlayer_->setCurrentIndex(0);
    imcGames_->setCurrentIndex(0);
    imcDate_->setCurrentIndex(imcDate_->count() - 1);
    NamePurpose(*imcPlayer_, tr("Player"));
    NamePurpose(*imcGames_, tr("Game"));
    NamePurpose(*imcDate_, tr("Time"));

    auto* filters = new QHBoxLayout;
    for (QComboBox* combo : {imcPlayer_, imcGames_, imcDate_}) {
        connect(combo, &QComboBox::activated, this, &LogDialog::FillLog);
        filters->addWidget(combo);
    }
    filters->addStretch();
    totals_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    view_->OfferDeals([this](int row) -> std::optional<GameChoice> {
        const ScoreList& list = engine_.score().List();
        const CompactScore& score = list.At(lvLog_->Positions()[static_cast<std::size_t>(row)]);
        return GameChoice{.Game = list.GameOf(score), .Number = list.NumberOf(score)};
    });
    connect(view_, &ReportView::DealAsked, this, &LogDialog::DealAsked);
    connect(view_, &ReportView::CopyCut, this, [this](int rows) {
        totals_->setText(tr("The first %1 of the selected rows were copied; \"Export "
                            "Statistics\" in Game Statistics writes all of them.")
                             .arg(locale().toString(rows)));
    });
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* all = new QVBoxLayout(this);
    all->addLayout(filters);
    all->addWidget(view_);
    all->addWidget(totals_);
    all->addWidget(buttons);
    FillLog();
    auto* memory = new WindowMemory(this, engine_.data().Store(), "LogStatistics", kSize);
    view_->Remember(*memory, "log");
    if (const auto newest = NewestOf(engine_.score().List())) {
        view_->ShowRow(static_cast<int>(*newest), false);  // all games are shown
    }
}

LogDialog::~LogDialog() { engine_.score().CloseScore(); }

void LogDialog::FillLog() {
    const LogFilter filter{
        .Player = Chosen(*imcPlayer_),
        .Game = Chosen(*imcGames_),
        .Age = &AgeChoices()[static_cast<std::size_t>(imcDate_->currentIndex())]};
    lvLog_->SetPositions(LogPositions(engine_.score().List(), filter, engine_.Now()));
    view_->SetEmptyText(engine_.score().ScoreTop() == 0 ? tr("Nothing played yet.")
                                                        : tr("No game passes these filters."));
    const LogTotals totals = TotalsOf(engine_.score().List(), lvLog_->Positions());
    if (totals.Sum.Played == 0) return totals_->setText(tr("No games"));
    const QString sentence =
        totals.Sum.Played == 1
            ? tr("1 game, %1 won (%2%)   Time: %3   Best score: %4")
            : tr("%Ln games, %1 won (%2%)   Time: %3   Best score: %4", nullptr, totals.Sum.Played);
    totals_->setText(sentence.arg(
        locale().toString(totals.Sum.Won),
        locale().toString(100.0 * totals.Sum.Won / totals.Sum.Played, 'f', 1),
        Localized(PhraseWord(Duration{totals.Sum.Time})), locale().toString(totals.BestScore)));
}

}  // namespace varnello
