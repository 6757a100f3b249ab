#pragma once

#include <QAccessibleWidget>
#include <map>

#include "desktop/window/table_view.h"

namespace varnello {

/// The table as assistive programs read it: a list for each pile of the game and in it its cards,
/// with names, places and bounds on the screen. It tells what the engine's table holds, which a
/// flight may still be on its way to show.
class TableTree : public QAccessibleWidget {
public:
    explicit TableTree(TableView& view);
    ~TableTree() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    const Engine& engine() const { return view_.engine(); }
    /// Where a card at this place of the table is drawn, on the screen.
    QRect OnScreen(double left, double top) const;
    /// The pile's node, made when first asked for. The tree owns it.
    QAccessibleInterface* Pile(Cell cell, int pile) const;
    QAccessibleInterface* Card(PicID id) const;

private:
    TableView& view_;
    // Interfaces are known by number, and stay valid as long as the tree.
    mutable std::map<std::pair<Cell, int>, QAccessible::Id> piles_;
    mutable std::map<PicID, QAccessible::Id> cards_;
};

}  // namespace varnello
