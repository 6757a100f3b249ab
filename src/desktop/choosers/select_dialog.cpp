#include "desktop/choosers/select_dialog.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/accessible/label.h"
#include "desktop/choosers/lists.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"

namespace varnello {
namespace {

constexpr QSize kSize(600, 344);
constexpr int kPlayersPoll = 500;  // milliseconds

}  // namespace

SelectDialog::SelectDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      tree_(new GameTree(engine.data())),
      players_(new QComboBox),
      name_(new QLabel),
      preview_(new QLabel),
      play_(new QPushButton(tr("Play"))),
      rules_(new QPushButton(tr("Rules"))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(ToQt(kProductName));

    NamePurpose(*players_, tr("Player"));
    QFont large = name_->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    name_->setFont(large);
    preview_->setFixedSize(kPreviewSize);
    preview_->setAccessibleName(tr("Preview of the game"));

    auto* frame = new QGroupBox;
    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(preview_);

    auto* buttons = new QDialogButtonBox;
    // Tab goes from one to the next in this order; their places follow from what they are for.
    buttons->addButton(play_, QDialogButtonBox::AcceptRole);
    auto* cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    buttons->addButton(rules_, QDialogButtonBox::HelpRole);

    auto* right = new QVBoxLayout;
    right->addWidget(name_);
    right->addWidget(frame);
    right->addSpacing(6);
    right->addWidget(players_);
    right->addStretch();
    right->addWidget(buttons);
    auto* all = new QHBoxLayout(this);
    all->addWidget(tree_, 1);
    all->addLayout(right);

    FillPlayers(*players_, engine_.data());
    new WindowMemory(this, engine_.data().Store(), "SelectGame", kSize);
    connect(tree_, &QTreeWidget::currentItemChanged, this, &SelectDialog::ShowGame);
    connect(tree_, &QTreeWidget::itemDoubleClicked, this, &SelectDialog::Play);
    connect(play_, &QPushButton::clicked, this, &SelectDialog::Play);
    connect(rules_, &QPushButton::clicked, this,
            [this] { Q_EMIT RulesAsked(tree_->SelectedGame()); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(&Timer1_, &QTimer::timeout, this, &SelectDialog::FollowPlayers);
    Timer1_.start(kPlayersPoll);
    ShowGame();
    play_->setDefault(true);
    tree_->setFocus();
}

void SelectDialog::FollowPlayers() {
    const QStringList listed = PlayerNames(engine_.data());
    QStringList shown;
    for (int i = 0; i < players_->count(); ++i) shown << players_->itemText(i);
    if (listed == shown) return;
    const QString selected = players_->currentText();
    players_->clear();
    FillPlayers(*players_, engine_.data());
    if (listed.contains(selected)) players_->setCurrentText(selected);
}

void SelectDialog::ShowGame() {
    const QString game = tree_->SelectedGame();
    play_->setEnabled(!game.isEmpty());
    rules_->setEnabled(!game.isEmpty());
    if (game.isEmpty()) return;  // the root keeps the last game's name and picture
    name_->setText(game);
    preview_->setPixmap(previews_.Of(game.toStdString(), devicePixelRatioF()));
}

void SelectDialog::Play() {
    const QString game = tree_->SelectedGame();
    if (game.isEmpty()) return;
    FollowPlayers();
    const GameChoice choice{.Game = game.toStdString(),
                            .Player = players_->currentText().toStdString()};
    accept();
    Q_EMIT Chosen(choice);
}

}  // namespace varnello
