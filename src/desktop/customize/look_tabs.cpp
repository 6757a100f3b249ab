#include <QHBoxLayout>
#include <QVBoxLayout>
#include <functional>

#include "desktop/appearance/colours.h"
#include "desktop/appearance/looks.h"
#include "desktop/customize/customize_dialog.h"
#include "desktop/customize/look_icons.h"
#include "desktop/platform/tree_width.h"
#include "desktop/platform/words.h"

// The tabs "Background" and "Decks": trees whose items carry the number of a look.
namespace varnello {
namespace {

constexpr int kTag = Qt::UserRole;

/// Adds an item with its number, and selects it if it is the chosen one.
QTreeWidgetItem* AddItem(QTreeWidget* tree, QTreeWidgetItem* parent, const QString& text, int tag,
                         int chosen) {
    auto* item = new QTreeWidgetItem(parent, {text});
    item->setData(0, kTag, tag);
    if (tag == chosen) {
        for (QTreeWidgetItem* node = parent; node; node = node->parent()) node->setExpanded(true);
        tree->setCurrentItem(item);
    }
    return item;
}

void AddGroups(QTreeWidget* tree, QTreeWidgetItem* root, const QList<LookGroup>& groups,
               int chosen) {
    for (const LookGroup& group : groups) {
        const QString name = CustomizeDialog::tr(group.name);
        auto* node = new QTreeWidgetItem(root, {name});
        int number = 0;
        for (const int id : group.ids) {
            const QString place = InDigits(QStringLiteral("0%1").arg(++number));
            AddItem(tree, node,
                    CustomizeDialog::tr("%1 %2", "a group of looks, a number").arg(name, place), id,
                    chosen);
        }
    }
}

/// Draws the icons of the groups that are open, and of others when they open.
void DrawIconsOfOpenGroups(QTreeWidget* tree, const std::function<QIcon(int)>& iconOf) {
    const auto draw = [iconOf](const QTreeWidgetItem* group) {
        for (int i = 0; i < group->childCount(); ++i) {
            QTreeWidgetItem* item = group->child(i);
            const QVariant tag = item->data(0, kTag);
            if (tag.isValid() && item->icon(0).isNull()) item->setIcon(0, iconOf(tag.toInt()));
        }
    };
    QObject::connect(tree, &QTreeWidget::itemExpanded, tree, draw);
    for (QTreeWidgetItemIterator item(tree); *item; ++item) {
        if ((*item)->isExpanded()) draw(*item);
    }
}

/// The number of the chosen item; none for a group. What has only got the focus isn't chosen.
QVariant ChosenTag(const QTreeWidget* tree) {
    const QList<QTreeWidgetItem*> chosen = tree->selectedItems();
    return chosen.isEmpty() ? QVariant() : chosen.first()->data(0, kTag);
}

QTreeWidgetItem* Root(QTreeWidget* tree, const QString& text) {
    tree->setHeaderLabel(text);  // for assistive tools
    tree->setHeaderHidden(true);
    tree->setAccessibleName(text);
    auto* root = new QTreeWidgetItem(tree, {text});
    root->setExpanded(true);
    return root;
}

}  // namespace

QWidget* CustomizeDialog::MakeBackground() {
    FillBackgrounds();
    chkFade_->setChecked(background_.fade);
    UpdateColorControls(true);
    PaintPreviews();
    connect(tvBGround_, &QTreeWidget::itemSelectionChanged, this,
            &CustomizeDialog::ChooseBackground);
    connect(chkFade_, &QCheckBox::toggled, this, [this](bool on) {
        background_.fade = on;
        PaintPreviews();
    });
    cmdCustom_->setAutoDefault(false);
    connect(cmdCustom_, &QPushButton::clicked, this, &CustomizeDialog::ChooseColor);

    auto* page = new QWidget;
    auto* right = new QVBoxLayout;
    right->addWidget(Picture1_, 1);
    right->addWidget(chkFade_);
    right->addWidget(cmdCustom_);
    auto* all = new QHBoxLayout(page);
    all->addWidget(tvBGround_, 1);
    all->addLayout(right, 1);
    return page;
}

void CustomizeDialog::FillBackgrounds() {
    QTreeWidgetItem* root = Root(tvBGround_, tr("Backgrounds"));
    auto* colors = new QTreeWidgetItem(root, {tr("Colors")});
    customItem_ =
        AddItem(tvBGround_, colors, tr("Custom Color"), kCustomBackground, background_.bgIndex);
    for (int id = kFirstColour; id < kFirstColour + kOfferedColours; ++id) {
        AddItem(tvBGround_, colors, tr(GetCol(id)->name), id, background_.bgIndex);
    }
    AddGroups(tvBGround_, root, TileGroups(), background_.bgIndex);
    tvBGround_->setMinimumWidth(WidthOfTree(*tvBGround_));
    DrawIconsOfOpenGroups(tvBGround_, [this](int id) { return IconOfBackground(id); });
}

QIcon CustomizeDialog::IconOfBackground(int bgIndex) const {
    return BackgroundIcon(
        {.bgIndex = bgIndex, .fade = false, .customColor = background_.customColor});
}

void CustomizeDialog::ShowCustomColor() {
    customItem_->setIcon(0, IconOfBackground(kCustomBackground));
    PaintPreviews();
}

void CustomizeDialog::UpdateColorControls(bool hasTag) {
    cmdCustom_->setEnabled(hasTag && background_.bgIndex == kCustomBackground);
    chkFade_->setEnabled(hasTag && background_.bgIndex >= kCustomBackground);
}

void CustomizeDialog::ChooseBackground() {
    if (tvBGround_->selectedItems().isEmpty()) return;
    const QVariant tag = ChosenTag(tvBGround_);
    if (tag.isValid()) {
        background_.bgIndex = tag.toInt();
        PaintPreviews();
    }
    UpdateColorControls(tag.isValid());
}

QWidget* CustomizeDialog::MakeDecks() {
    FillDecks();
    picDeckBack_->ShowDeck(deck_);
    connect(tvDeck_, &QTreeWidget::itemSelectionChanged, this, &CustomizeDialog::ChooseDeck);
    auto* page = new QWidget;
    auto* all = new QHBoxLayout(page);
    all->addWidget(tvDeck_, 1);
    all->addWidget(picDeckBack_, 1);
    return page;
}

void CustomizeDialog::FillDecks() {
    QTreeWidgetItem* root = Root(tvDeck_, tr("Decks"));
    AddGroups(tvDeck_, root, DeckGroups(), deck_);
    DrawIconsOfOpenGroups(tvDeck_, DeckIcon);
}

void CustomizeDialog::ChooseDeck() {
    const QVariant tag = ChosenTag(tvDeck_);
    if (!tag.isValid()) return;
    deck_ = tag.toInt();
    picDeckBack_->ShowDeck(deck_);
}

}  // namespace varnello
