#include "desktop/choosers/game_tree.h"

#include "desktop/appearance/game_mark.h"
#include "desktop/appearance/icons.h"
#include "desktop/platform/text.h"
#include "desktop/platform/tree_width.h"

namespace varnello {

GameTree::GameTree(const cData& data) {
    setHeaderLabel(tr("Games"));  // for assistive tools
    setHeaderHidden(true);
    setIconSize(kGameMarkSize);
    setUniformRowHeights(true);
    setAccessibleName(tr("Games"));
    auto* root = new QTreeWidgetItem(this, {tr("Games")});
    root->setIcon(0, SmallIcon(QStringLiteral("games")));
    const QString last = ToQt(data.LastGName());
    QTreeWidgetItem* selected = nullptr;
    for (std::int16_t id = 1; id <= data.TotalGames(); ++id) {
        const std::string name = data.GetGName(id);
        auto* item = new QTreeWidgetItem(root, {ToQt(name)});
        item->setIcon(0, GameMark(name));
        if (id == 1 || item->text(0) == last) selected = item;
    }
    root->setExpanded(true);
    setCurrentItem(selected);
    scrollToItem(selected, PositionAtCenter);
}

QString GameTree::SelectedGame() const {
    const QTreeWidgetItem* item = currentItem();
    return item && item->parent() ? item->text(0) : QString();
}

QSize GameTree::sizeHint() const {
    return {minimumSizeHint().width(), QTreeWidget::sizeHint().height()};
}

QSize GameTree::minimumSizeHint() const {
    return {WidthOfTree(*this), QTreeWidget::minimumSizeHint().height()};
}

QModelIndex GameTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex next = QTreeWidget::moveCursor(action, modifiers);
    if (!GamesShown() || next.parent().isValid()) return next;
    return action == MoveLeft ? currentIndex() : next.model()->index(0, 0, next);
}

void GameTree::keyboardSearch(const QString& text) {
    QTreeWidgetItem* const before = currentItem();
    QTreeWidget::keyboardSearch(text);
    if (GamesShown() && currentItem() == topLevelItem(0)) setCurrentItem(before);
}

}  // namespace varnello
