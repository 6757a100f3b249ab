#pragma once

#include <QComboBox>
#include <QDialog>
#include <QTabWidget>

#include "desktop/reports/report_view.h"
#include "engine/flow/engine.h"
#include "engine/reports/high_scores.h"

namespace varnello {

/// `frmHighScore`: four rankings of twenty places. It shows the open score list, and closes it in
/// the end.
class HighScoreDialog : public QDialog {
    Q_OBJECT

public:
    /// `won` marks the game that was won last, as the current player has played it.
    HighScoreDialog(Engine& engine, bool won, QWidget* parent);
    ~HighScoreDialog() override;

Q_SIGNALS:
    /// A person wants to play a deal of the lists again.
    void DealAsked(const varnello::GameChoice& deal);

private:
    /// A sheet's list and the games that stand in it.
    struct Sheet {
        RowsModel* model;
        ReportView* view;
        std::vector<std::uint32_t> positions;
    };

    Sheet NewSheet(RecordColumns columns, const QString& name);
    QWidget* MakePage(QComboBox* filter, const Sheet& sheet);
    void Show(Sheet& sheet, Ranking ranking);
    void FillGame();
    void FillPlayer();
    void FillFinished();

    Engine& engine_;
    QTabWidget* SSTab1_;
    Sheet lvTop_;
    Sheet lvGames_;
    Sheet lvPlayer_;
    Sheet lvFin_;
    std::optional<std::uint32_t> marked_;  ///< position of the game just won
    QComboBox* imcGames_;
    QComboBox* imcPlayer_;
    QComboBox* imcFin_;
};

}  // namespace varnello
