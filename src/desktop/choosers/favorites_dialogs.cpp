#include "desktop/choosers/favorites_dialogs.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/accessible/label.h"
#include "desktop/appearance/game_mark.h"
#include "desktop/appearance/icons.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"

namespace varnello {
namespace {

constexpr QSize kPlaySize(300, 300);
constexpr QSize kOrganizeSize(460, 400);
constexpr int kClearPoll = 500;  // milliseconds

/// Shows the favorites of one game.
void FillNumbers(QListWidget& list, const Favorites& favorites, const QString& game) {
    const QIcon icon = SmallIcon(QStringLiteral("favorite"));
    list.setUpdatesEnabled(false);
    list.clear();
    for (const std::string& number : favorites.NumbersOf(game.toStdString())) {
        new QListWidgetItem(icon, ToQt(number), &list);
    }
    list.setUpdatesEnabled(true);
}

QListWidget* NumbersList() {
    auto* list = new QListWidget;
    list->setUniformItemSizes(true);
    list->setAccessibleName(OrganizeFavoritesDialog::tr("Game Number"));
    return list;
}

}  // namespace

PlayFavoriteDialog::PlayFavoriteDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      imcGames_(new QComboBox),
      lvFav_(NumbersList()),
      cmdPlay_(new QPushButton(tr("Play"))) {
    setWindowTitle(tr("Play from Favorites"));
    engine_.favorites().OpenFav();
    FillGames(*imcGames_, engine_.data(), engine_.data().CurGName());
    NamePurpose(*imcGames_, tr("Game"));

    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdPlay_, QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto* all = new QVBoxLayout(this);
    all->addWidget(imcGames_);
    all->addWidget(lvFav_);
    all->addWidget(buttons);
    new WindowMemory(this, engine_.data().Store(), "PlayFavorites", kPlaySize);

    cmdPlay_->setDefault(true);
    connect(imcGames_, &QComboBox::currentIndexChanged, this, &PlayFavoriteDialog::UpdateLVFav);
    connect(lvFav_, &QListWidget::itemDoubleClicked, this, &PlayFavoriteDialog::Play);
    connect(buttons, &QDialogButtonBox::accepted, this, &PlayFavoriteDialog::Play);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    UpdateLVFav();
}

void PlayFavoriteDialog::UpdateLVFav() {
    FillNumbers(*lvFav_, engine_.favorites(), imcGames_->currentText());
    lvFav_->setCurrentRow(lvFav_->count() - 1);  // the newest one
    cmdPlay_->setEnabled(lvFav_->count() > 0);
}

void PlayFavoriteDialog::Play() {
    const QListWidgetItem* item = lvFav_->currentItem();
    if (!item) return;
    choice_ = GameChoice{.Game = imcGames_->currentText().toStdString(),
                         .Number = GameNumber::Text(item->text().toStdString())};
    accept();
}

OrganizeFavoritesDialog::OrganizeFavoritesDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      lvGames_(new QListWidget),
      lvFav_(NumbersList()),
      cmdClear_(new QPushButton(tr("Clear Favorites"))) {
    setWindowTitle(tr("Organize Favorites"));
    engine_.favorites().OpenFav();
    const cData& data = engine_.data();
    lvGames_->setAccessibleName(tr("Game"));
    lvGames_->setIconSize(kGameMarkSize);
    for (std::int16_t id = 1; id <= data.TotalGames(); ++id) {
        auto* item =
            new QListWidgetItem(GameMark(data.GetGName(id)), ToQt(data.GetGName(id)), lvGames_);
        if (id == 1 || item->text() == ToQt(data.CurGName())) lvGames_->setCurrentItem(item);
    }

    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdClear_, QDialogButtonBox::ResetRole);
    auto* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    // As wide as the longest name, beside a scroll bar.
    lvGames_->setMinimumWidth(lvGames_->sizeHintForColumn(0) + 2 * lvGames_->frameWidth() +
                              lvGames_->verticalScrollBar()->sizeHint().width());
    auto* left = new QVBoxLayout;
    left->addWidget(new QLabel(tr("Game")));
    left->addWidget(lvGames_);
    auto* right = new QVBoxLayout;
    right->addWidget(new QLabel(tr("Game Number")));
    right->addWidget(lvFav_);
    auto* lists = new QHBoxLayout;
    lists->addLayout(left);
    lists->addLayout(right);
    auto* all = new QVBoxLayout(this);
    all->addLayout(lists);
    all->addWidget(buttons);
    new WindowMemory(this, engine_.data().Store(), "OrganizeFavorites", kOrganizeSize);

    close->setDefault(true);
    cmdClear_->setEnabled(engine_.favorites().FavTop() >= 1);
    connect(lvGames_, &QListWidget::currentRowChanged, this, &OrganizeFavoritesDialog::UpdateLVFav);
    connect(cmdClear_, &QPushButton::clicked, this, &OrganizeFavoritesDialog::Clear);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&Timer1_, &QTimer::timeout, this,
            [this] { cmdClear_->setEnabled(engine_.favorites().FavTop() >= 1); });
    Timer1_.start(kClearPoll);
    UpdateLVFav();
    lvGames_->setFocus();
}

void OrganizeFavoritesDialog::UpdateLVFav() {
    const QListWidgetItem* game = lvGames_->currentItem();
    FillNumbers(*lvFav_, engine_.favorites(), game ? game->text() : QString());
}

void OrganizeFavoritesDialog::Clear() {
    engine_.choosing().ClearFavorites();
    UpdateLVFav();
}

}  // namespace varnello
