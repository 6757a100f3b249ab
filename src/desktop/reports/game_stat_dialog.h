#pragma once

#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QTabWidget>

#include "desktop/reports/report_charts.h"
#include "desktop/reports/report_view.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmGameStat`: everything that was ever played, by game, by date and by player. The score list
/// is open for as long as the window is.
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
    /// Shows the open score list everywhere.
    void Fill();
    void FillGeneral();
    void ShowGame();
    void ShowPeriods();
    void ShowPlayer();
    void Export();

    Engine& engine_;
    QTabWidget* SSTab1_;
    QListWidget* lvGeneral_;
    RowsModel* lvGames_;
    RowsModel* lvDate_;
    RowsModel* lvPlayer_;
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
};

}  // namespace varnello
