#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include "desktop/choosers/game_choice.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmChoose`: chooses a game by its name and number.
class NumberDialog : public QDialog {
    Q_OBJECT

public:
    NumberDialog(Engine& engine, QWidget* parent);

    /// Fills in a deal: a person wants to play it again.
    void Propose(const GameChoice& deal);
    /// What was chosen; nothing when the dialog was cancelled.
    const std::optional<GameChoice>& Choice() const { return choice_; }

    QLineEdit* number() const { return number_; }

private:
    /// A number that may be chosen.
    std::string Proposal();
    void Select();

    Engine& engine_;
    QComboBox* games_;
    QComboBox* players_;
    QLineEdit* number_;
    std::optional<GameChoice> choice_;
};

}  // namespace varnello
