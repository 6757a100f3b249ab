#include "desktop/choosers/players_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "desktop/choosers/one_line_validator.h"
#include "desktop/platform/questions.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"

namespace varnello {
namespace {

constexpr QSize kPlayersSize(400, 300);
constexpr int kNameWidth = 300;

}  // namespace

PlayersDialog::PlayersDialog(Engine& engine, QWidget* parent)
    : QDialog(parent), engine_(engine), lvPlayer_(new QListWidget) {
    setWindowTitle(tr("Players"));
    lvPlayer_->setAccessibleName(tr("Players"));

    auto* column = new QVBoxLayout;
    const auto button = [&](const QString& text, void (PlayersDialog::*act)()) {
        auto* made = new QPushButton(text);
        connect(made, &QPushButton::clicked, this, act);
        column->addWidget(made);
        return made;
    };
    button(tr("New"), &PlayersDialog::Add);
    button(tr("Edit"), &PlayersDialog::Edit);
    cmdDelete_ = button(tr("Delete"), &PlayersDialog::Delete);
    column->addStretch();
    button(tr("Select"), &PlayersDialog::Select)->setDefault(true);
    button(tr("Cancel"), &QDialog::reject);
    auto* all = new QHBoxLayout(this);
    all->addWidget(lvPlayer_);
    all->addLayout(column);
    new WindowMemory(this, engine_.data().Store(), "Players", kPlayersSize);

    connect(lvPlayer_, &QListWidget::currentRowChanged, this, &PlayersDialog::UpdateDelete);
    connect(lvPlayer_, &QListWidget::itemDoubleClicked, this, &PlayersDialog::Select);
    RefreshList();
    lvPlayer_->setFocus();
}

void PlayersDialog::RefreshList() {
    lvPlayer_->clear();
    const cData& data = engine_.data();
    for (const QString& name : PlayerNames(data)) {
        auto* item = new QListWidgetItem(SmallIcon(QStringLiteral("player")), name, lvPlayer_);
        if (name == ToQt(data.CurPlayer())) lvPlayer_->setCurrentItem(item);
    }
    if (!lvPlayer_->currentItem()) lvPlayer_->setCurrentRow(0);
    UpdateDelete();
}

std::string PlayersDialog::SelectedName() const {
    const QListWidgetItem* item = lvPlayer_->currentItem();
    return item ? item->text().toStdString() : std::string();
}

void PlayersDialog::UpdateDelete() {
    const std::string name = SelectedName();
    cmdDelete_->setEnabled(!name.empty() && name != engine_.data().CurPlayer());
}

void PlayersDialog::AskInput(const QString& label, const std::string& name) {
    NameDialog(engine_, label, name, this).exec();
    RefreshList();
}

void PlayersDialog::Add() {
    if (engine_.players().MayAddPlayer()) AskInput(tr("Add Player"), {});
}

void PlayersDialog::Edit() {
    const std::string name = SelectedName();
    if (!name.empty()) AskInput(tr("Edit Player"), name);
}

void PlayersDialog::Delete() {
    if (!AskYesNo(this, kDeletePlayerQuestion, QMessageBox::Critical)) return;
    if (engine_.players().DeletePlayer(SelectedName())) RefreshList();
}

void PlayersDialog::Select() {
    const std::string name = SelectedName();
    if (name.empty()) return;
    engine_.data().CurPlayer(name);
    accept();
}

NameDialog::NameDialog(Engine& engine, const QString& label, const std::string& name,
                       QWidget* parent)
    : QDialog(parent), engine_(engine), oldName_(name), Text1_(new QLineEdit(ToQt(name))) {
    setWindowTitle(ToQt(kProductName));
    auto* caption = new QLabel(label);
    caption->setBuddy(Text1_);
    Text1_->setAccessibleName(label);
    Text1_->setValidator(new OneLineValidator(Text1_, kMaxPlayerName));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* all = new QVBoxLayout(this);
    all->addWidget(caption);
    all->addWidget(Text1_);
    all->addSpacing(6);
    all->addWidget(buttons);
    setMinimumWidth(kNameWidth);

    connect(buttons, &QDialogButtonBox::accepted, this, &NameDialog::Ok);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Text1_->selectAll();
    Text1_->setFocus();
}

void NameDialog::Ok() {
    if (engine_.players().EnterPlayer(oldName_, Text1_->text().toStdString())) return accept();
    Text1_->setFocus();
}

}  // namespace varnello
