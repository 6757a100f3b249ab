#include "desktop/reports/log_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/accessible/label.h"
#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/text.h"
#include "desktop/reports/report_view.h"

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
      imcDate_(new QComboBox) {
    setWindowTitle(QStringLiteral("Log Statistics"));
    setWindowIcon(SmallIcon(QStringLiteral("statistics")));
    engine_.results().OpenScores();
    lvLog_ = new LogModel(engine_.score().List(), engine_.dates(), this);

    FillPlayers(*imcPlayer_, engine.data());
    FillGames(*imcGames_, engine.data(), {});
    imcPlayer_->insertItem(0, SmallIcon(QStringLiteral("player")), QStringLiteral("All Players"));
    imcGames_->insertItem(0, SmallIcon(QStringLiteral("games")), QStringLiteral("All Games"));
    for (const AgeChoice& age : AgeChoices()) imcDate_->addItem(ToQt(age.Text));
    imcPlayer_->setCurrentIndex(0);
    imcGames_->setCurrentIndex(0);
    imcDate_->setCurrentIndex(imcDate_->count() - 1);
    NamePurpose(*imcPlayer_, QStringLiteral("Player"));
    NamePurpose(*imcGames_, QStringLiteral("Game"));
    NamePurpose(*imcDate_, QStringLiteral("Time"));

    FillLog();
    auto* filters = new QHBoxLayout;
    for (QComboBox* combo : {imcPlayer_, imcGames_, imcDate_}) {
        connect(combo, &QComboBox::activated, this, &LogDialog::FillLog);
        filters->addWidget(combo);
    }
    filters->addStretch();
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* all = new QVBoxLayout(this);
    all->addLayout(filters);
    all->addWidget(new ReportView(lvLog_, QStringLiteral("Log")));
    all->addWidget(buttons);
    resize(kSize);
}

LogDialog::~LogDialog() { engine_.score().CloseScore(); }

void LogDialog::FillLog() {
    const LogFilter filter{
        .Player = Chosen(*imcPlayer_),
        .Game = Chosen(*imcGames_),
        .Age = &AgeChoices()[static_cast<std::size_t>(imcDate_->currentIndex())]};
    lvLog_->SetPositions(LogPositions(engine_.score().List(), filter, engine_.Now()));
}

}  // namespace varnello
