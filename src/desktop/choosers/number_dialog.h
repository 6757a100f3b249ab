#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include "engine/flow/engine.h"

namespace varnello {

/// `frmChoose`: starts a game by its name and number.
class NumberDialog : public QDialog {
    Q_OBJECT

public:
    NumberDialog(Engine& engine, QWidget* parent);

    QLineEdit* number() const { return number_; }

private:
    void Select();

    Engine& engine_;
    QComboBox* games_;
    QComboBox* players_;
    QLineEdit* number_;
};

}  // namespace varnello
