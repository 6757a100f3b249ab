#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>

#include "desktop/reports/log_model.h"
#include "desktop/reports/report_view.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmLogStat`: every recorded game, one row each, narrowed by three filters. It shows the open
/// score list, and closes it in the end.
class LogDialog : public QDialog {
    Q_OBJECT

public:
    LogDialog(Engine& engine, QWidget* parent);
    ~LogDialog() override;

Q_SIGNALS:
    /// A person wants to play a deal of the list again.
    void DealAsked(const varnello::GameChoice& deal);

private:
    void FillLog();

    Engine& engine_;
    QComboBox* imcPlayer_;
    QComboBox* imcGames_;
    QComboBox* imcDate_;
    LogModel* lvLog_;
    ReportView* view_;
    QLabel* totals_;
};

}  // namespace varnello
