#pragma once

#include <QTreeWidget>

#include "engine/settings/data.h"

namespace varnello {

/// All games below one root, which keys don't come to. One game is always current until a person
/// clicks on the root.
class GameTree : public QTreeWidget {
    Q_OBJECT

public:
    /// Opens on the last game played.
    explicit GameTree(const cData& data);

    /// The selected game's name; empty while the root is selected.
    QString SelectedGame() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void keyboardSearch(const QString& text) override;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    bool GamesShown() const { return topLevelItem(0)->isExpanded(); }
};

}  // namespace varnello
