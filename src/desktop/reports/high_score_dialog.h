#pragma once

#include <QComboBox>
#include <QDialog>
#include <QTabWidget>

#include "desktop/reports/report_view.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmHighScore`: four rankings of twenty places. The score list is open for as long as the window
/// is.
class HighScoreDialog : public QDialog {
    Q_OBJECT

public:
    HighScoreDialog(Engine& engine, QWidget* parent);
    ~HighScoreDialog() override;

private:
    QWidget* MakeSheet(QComboBox* filter, RowsModel* model, const QString& name);
    void FillGame();
    void FillPlayer();
    void FillFinished();

    Engine& engine_;
    QTabWidget* SSTab1_;
    RowsModel* lvTop_;
    RowsModel* lvGames_;
    RowsModel* lvPlayer_;
    RowsModel* lvFin_;
    QComboBox* imcGames_;
    QComboBox* imcPlayer_;
    QComboBox* imcFin_;
};

}  // namespace varnello
