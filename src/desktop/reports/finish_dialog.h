#pragma once

#include <QDialog>

#include "engine/flow/engine.h"

namespace varnello {

enum class FinishChoice { NewGame, SelectGame, RestartGame, Close };

/// `frmFinish`: the result of a won game as a list and a chart, and what may come next. The win is
/// already booked when it opens.
class FinishDialog : public QDialog {
    Q_OBJECT

public:
    FinishDialog(const FinishFigures& figures, QWidget* parent);

    FinishChoice Choice() const { return choice_; }

private:
    QWidget* MakeToolbar();
    QWidget* MakeResult(const FinishFigures& figures);

    FinishChoice choice_ = FinishChoice::Close;
};

}  // namespace varnello
