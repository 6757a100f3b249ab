#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "engine/flow/engine.h"

namespace varnello {

/// `frmPlayers`: adds, renames, deletes and selects players.
class PlayersDialog : public QDialog {
    Q_OBJECT

public:
    PlayersDialog(Engine& engine, QWidget* parent);

private:
    void RefreshList();
    void UpdateDelete();
    std::string SelectedName() const;
    void AskInput(const QString& label, const std::string& name);
    void Add();
    void Edit();
    void Delete();
    void Select();

    Engine& engine_;
    QListWidget* lvPlayer_;
    QPushButton* cmdDelete_ = nullptr;
};

/// `dlGInput`: takes a player's name. It stays open until the name is accepted.
class NameDialog : public QDialog {
    Q_OBJECT

public:
    /// An empty `name` asks for a new player, another one is to be renamed.
    NameDialog(Engine& engine, const QString& label, const std::string& name, QWidget* parent);

private:
    void Ok();

    Engine& engine_;
    std::string oldName_;
    QLineEdit* Text1_;
};

}  // namespace varnello
