#pragma once

#include <QObject>
#include <memory>

#include "desktop/window/main_window.h"
#include "desktop/window/splash.h"

namespace varnello {

/// The way from the start to the end: which window comes after which.
class Program : public QObject {
    Q_OBJECT

public:
    explicit Program(const MainWindow::System& system) : system_(system) {}

    /// Shows the splash. Whatever ends it leads to `AfterSplash`.
    void Main();
    void AfterSplash();
    /// Shows the main window, and the selector over its empty table.
    void OpenMainWindow();
    /// Lets go of all windows, and of what the main window owns.
    void UnloadAll();

    /// The session ends, at whatever moment of this.
    void EndSession();
    /// Books what is to be booked; the process is about to end by itself.
    void Leave();

    /// Null while it isn't open.
    Splash* splash() const { return splash_.get(); }
    MainWindow* window() const { return window_.get(); }

Q_SIGNALS:
    /// No window is left to look at.
    void Ended();

private:
    MainWindow::System system_;
    std::unique_ptr<Splash> splash_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace varnello
