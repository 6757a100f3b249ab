#pragma once

#include <QComboBox>
#include <QDialog>

#include "desktop/reports/log_model.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmLogStat`: every recorded game, one row each, narrowed by three filters. The score list is
/// open for as long as the window is.
class LogDialog : public QDialog {
    Q_OBJECT

public:
    LogDialog(Engine& engine, QWidget* parent);
    ~LogDialog() override;

private:
    void FillLog();

    Engine& engine_;
    QComboBox* imcPlayer_;
    QComboBox* imcGames_;
    QComboBox* imcDate_;
    LogModel* lvLog_;
};

}  // namespace varnello
