#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include "desktop/reports/report_charts.h"
#include "desktop/reports/report_view.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmGameStat`: everything that was ever played, by game, by date and by player. It shows the
/// open score list, and closes it in the end.
class GameStatDialog : public QDialog {
    Q_OBJECT

public:
    GameStatDialog(Engine& engine, QWidget* parent);
    ~GameStatDialog() override;

private:
    QWidget* MakeGeneral();
    QWidget* MakeGames();
    QWidget* MakeDates();
    QWidget* MakePlayers();
    QWidget* MakeButtons();
    void FillGeneral();
    void ShowGame();
    void ShowPeriods();
    void ShowPlayer();

    Engine& engine_;
    QTabWidget* SSTab1_;
    QListWidget* lvGeneral_;
    RowsModel* lvGames_;
    RowsModel* lvDate_;
    RowsModel* lvPlayer_;
    ReportView* gamesView_;
    ReportView* playersView_;
    QComboBox* imcGames_;
    QComboBox* imcDate_;
    QComboBox* imcPlayer_;
    Chart* chGen_;
    Chart* chGen1_;
    Chart* chGames_;
    Chart* chGames1_;
    Chart* chDate_;
    Chart* chDate1_;
    Chart* chPlayer_;
    Chart* chPlayer1_;
    ChartArea* generalCharts_;
    ChartArea* gameCharts_;
    ChartArea* dateCharts_;
    ChartArea* playerCharts_;
    QLabel* generalStreak_;
    QLabel* gameStreak_;
    QLabel* playerStreak_;
};

}  // namespace varnello
