#pragma once

#include <QDialog>

namespace varnello {

/// `frmAbout`: what this program is.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);
};

}  // namespace varnello
