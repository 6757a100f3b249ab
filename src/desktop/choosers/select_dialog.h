#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "desktop/appearance/preview.h"
#include "desktop/choosers/game_choice.h"
#include "desktop/choosers/game_tree.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmSelect`: a game is chosen by name, with a preview of its table, and a player. It opens on
/// the last game played and the current player, and deletes itself when it closes.
class SelectDialog : public QDialog {
    Q_OBJECT

public:
    SelectDialog(Engine& engine, QWidget* parent);

    GameTree* tree() const { return tree_; }
    QComboBox* players() const { return players_; }
    QPushButton* play() const { return play_; }

Q_SIGNALS:
    /// The rules of this game are to be shown; the dialog stays open.
    void RulesAsked(const QString& game);
    /// A game was chosen; the dialog closes.
    void Chosen(const GameChoice& choice);

private:
    /// Shows the players as they are listed now; another window or another copy may change them.
    void FollowPlayers();
    void ShowGame();
    void Play();

    Engine& engine_;
    GameTree* tree_;
    QComboBox* players_;
    QLabel* name_;
    QLabel* preview_;
    Previews previews_;
    QPushButton* play_;
    QPushButton* rules_;
    QTimer Timer1_;
};

}  // namespace varnello
