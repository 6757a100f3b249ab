#include "desktop/choosers/number_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/choosers/lists.h"
#include "desktop/choosers/one_line_validator.h"
#include "desktop/platform/text.h"

namespace varnello {
namespace {

constexpr std::size_t kLongestNumber = 32767;  // characters

}  // namespace

NumberDialog::NumberDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      games_(new QComboBox),
      players_(new QComboBox),
      number_(new QLineEdit) {
    setWindowTitle(QStringLiteral("Select a Game Number"));
    FillGames(*games_, engine_.data(), engine_.data().CurGName());
    FillPlayers(*players_, engine_.data());
    number_->setText(ToQt(engine_.choosing().RandomGNo().Shown()));
    number_->setValidator(new OneLineValidator(number_, kLongestNumber));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Game"), games_);
    form->addRow(QStringLiteral("P&layer"), players_);
    auto* name = new QLabel(QStringLiteral("Enter a Game Number between"));
    auto* range = new QLabel(ToQt(engine_.choosing().RangeText()));
    name->setBuddy(number_);
    number_->setAccessibleName(name->text() + ' ' + range->text());

    auto* buttons = new QDialogButtonBox;
    auto* select = buttons->addButton(QStringLiteral("Select"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    auto* all = new QVBoxLayout(this);
    all->addLayout(form);
    all->addSpacing(8);
    all->addWidget(name);
    all->addWidget(range);
    all->addWidget(number_);
    all->addSpacing(8);
    all->addStretch();
    all->addWidget(buttons);
    setMinimumWidth(320);

    select->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &NumberDialog::Select);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    number_->selectAll();
    number_->setFocus();
}

void NumberDialog::Propose(const GameChoice& deal) {
    games_->setCurrentIndex(std::max(games_->findText(ToQt(deal.Game)), 0));
    if (deal.Number) number_->setText(ToQt(deal.Number->Shown()));
    number_->selectAll();
}

void NumberDialog::Select() {
    const std::string number = number_->text().toStdString();
    if (engine_.choosing().AcceptNumber(number)) {
        choice_ = GameChoice{.Game = games_->currentText().toStdString(),
                             .Number = GameNumber::Text(number),
                             .Player = players_->currentText().toStdString()};
        return accept();
    }
    number_->setText(QStringLiteral("0"));
    number_->selectAll();  // so that typing replaces it
    number_->setFocus();
}

}  // namespace varnello
