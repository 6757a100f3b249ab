#pragma once

#include <QDialog>
#include <QLabel>
#include <QTabWidget>
#include <QTimer>
#include <vector>

#include "desktop/reports/report_charts.h"
#include "desktop/reports/report_view.h"
#include "engine/flow/engine.h"
#include "engine/flow/session_report.h"

namespace varnello {

/// `frmSesStat`: this run of the program, and live the game on the table.
class SessionDialog : public QDialog {
    Q_OBJECT

public:
    SessionDialog(Engine& engine, QWidget* parent);

Q_SIGNALS:
    /// A person wants to play a deal of the lists again.
    void DealAsked(const varnello::GameChoice& deal);

private:
    QWidget* MakeSummary();
    QWidget* MakeDetails();
    QWidget* MakeThisSession();
    QWidget* MakeThisGame();
    void FillTable();
    void Tick();
    void ShowChart();
    void RefreshChart();
    GameChoice DealAt(int row) const;

    Engine& engine_;
    QTabWidget* SSTab1_;
    RowsModel* lvSession_;
    RowsModel* lvSesChart_;
    ReportView* sessionView_;
    ReportView* detailView_;
    Chart* chSummary_;
    Chart* chChart_;
    QLabel* lblSesElapsedTime_ = nullptr;
    QLabel* lblGameScore_ = nullptr;
    QLabel* lblGameTime_ = nullptr;
    std::vector<GameFigures> table_;  ///< a row for each ended game and one for the running one
    bool running_;                    ///< whether the lists have a row for a running game
    QTimer Timer1_;
};

}  // namespace varnello
