#pragma once

#include <QTimer>
#include <QWidget>

namespace varnello {

/// `frmSplash`: shown while nothing else is, until two seconds have passed, a click or a key.
class Splash : public QWidget {
    Q_OBJECT

public:
    Splash();

Q_SIGNALS:
    /// Once, whatever ends it first.
    void Ended();

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void End();

    QTimer Timer1_;
    bool ended_ = false;
};

}  // namespace varnello
