#pragma once

#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include "desktop/choosers/game_choice.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmPlayFav`: chooses a favorite deal.
class PlayFavoriteDialog : public QDialog {
    Q_OBJECT

public:
    PlayFavoriteDialog(Engine& engine, QWidget* parent);

    /// What was chosen; nothing when the dialog was cancelled.
    const std::optional<GameChoice>& Choice() const { return choice_; }

    QListWidget* numbers() const { return lvFav_; }

private:
    void UpdateLVFav();
    void Play();

    Engine& engine_;
    QComboBox* imcGames_;
    QListWidget* lvFav_;
    QPushButton* cmdPlay_;
    std::optional<GameChoice> choice_;
};

/// `frmOrgFav`: shows all favorites by game, and can clear them.
class OrganizeFavoritesDialog : public QDialog {
    Q_OBJECT

public:
    OrganizeFavoritesDialog(Engine& engine, QWidget* parent);

private:
    void UpdateLVFav();
    void Clear();

    Engine& engine_;
    QListWidget* lvGames_;
    QListWidget* lvFav_;
    QPushButton* cmdClear_;
    QTimer Timer1_;
};

}  // namespace varnello
