#pragma once

#include <QDialog>
#include <QTreeWidget>

#include "engine/desktop.h"
#include "engine/movelog/log.h"

namespace varnello {

/// `frmHistory`: the whole log of the running game as it is when the window opens.
class HistoryDialog : public QDialog {
    Q_OBJECT

public:
    HistoryDialog(const cTrans& log, SettingsStore& store, QWidget* parent);

private:
    QTreeWidget* lvHistory_;
};

}  // namespace varnello
