#pragma once

#include <QDialog>
#include <QToolButton>

#include "engine/flow/engine.h"
#include "engine/reports/wins.h"

namespace varnello {

enum class FinishChoice { NewGame, SelectGame, RestartGame, Close };

/// `frmFinish`: the result of a won game as a list and a chart, and what may come next. The win is
/// already booked when it opens.
class FinishDialog : public QDialog {
    Q_OBJECT

public:
    FinishDialog(const FinishFigures& figures, const OwnWins& wins, QWidget* parent);

    FinishChoice Choice() const { return choice_; }

Q_SIGNALS:
    /// The window over all results, or the rankings; the dialog stays open beneath.
    void StatisticsAsked();
    void HighScoreAsked();

private:
    QWidget* MakeToolbar();
    QWidget* MakeResult(const FinishFigures& figures, const OwnWins& wins);

    FinishChoice choice_ = FinishChoice::Close;
    QToolButton* newGame_ = nullptr;
};

}  // namespace varnello
