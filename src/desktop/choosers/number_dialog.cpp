#include "desktop/choosers/number_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/choosers/deal_validator.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_size.h"
#include "desktop/platform/words.h"

namespace varnello {
namespace {

constexpr std::size_t kLongestNumber = 32767;  // characters
constexpr int kMostDraws = 1000;               // a range out of the settings may have no number
constexpr QSize kSize(320, 190);

}  // namespace

NumberDialog::NumberDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      games_(new QComboBox),
      players_(new QComboBox),
      number_(new QLineEdit) {
    setWindowTitle(tr("Select a Game Number"));
    FillGames(*games_, engine_.data(), engine_.data().CurGName());
    FillPlayers(*players_, engine_.data());
    number_->setText(ToQt(Proposal()));
    number_->setValidator(new DealValidator(
        number_, kLongestNumber, engine_.data(),
        [this](const QString& game) { games_->setCurrentIndex(games_->findText(game)); }));

    auto* form = new QFormLayout;
    form->addRow(tr("&Game"), games_);
    form->addRow(tr("P&layer"), players_);
    auto* name = new QLabel(tr("Enter a Game Number between"));
    auto* range = new QLabel(Localized(engine_.choosing().RangeText()));
    name->setBuddy(number_);
    number_->setAccessibleName(name->text() + ' ' + range->text());

    auto* buttons = new QDialogButtonBox;
    auto* select = buttons->addButton(tr("Select"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto* all = new QVBoxLayout(this);
    all->addLayout(form);
    all->addSpacing(8);
    all->addWidget(name);
    all->addWidget(range);
    all->addWidget(number_);
    all->addSpacing(8);
    all->addStretch();
    all->addWidget(buttons);
    resize(SizeFor(*this, kSize));

    select->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &NumberDialog::Select);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    number_->selectAll();
    number_->setFocus();
}

std::string NumberDialog::Proposal() {
    std::string number;
    // The highest numbers of a range can be drawn and not be chosen.
    for (int draw = 0; draw < kMostDraws; ++draw) {
        number = engine_.choosing().RandomGNo().Shown();
        if (engine_.choosing().IsChoosable(number)) break;
    }
    return number;
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
