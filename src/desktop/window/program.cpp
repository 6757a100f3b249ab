#include "desktop/window/program.h"

namespace varnello {

void Program::Main() {
    splash_ = std::make_unique<Splash>();
    // Queued, so that the splash has done with what ended it when it goes.
    connect(splash_.get(), &Splash::Ended, this, &Program::AfterSplash, Qt::QueuedConnection);
    splash_->show();
}

void Program::AfterSplash() {
    splash_.reset();
    OpenMainWindow();
}

void Program::OpenMainWindow() {
    window_ = std::make_unique<MainWindow>(system_);
    connect(window_.get(), &MainWindow::Closed, this, &Program::Ended);
    window_->showMaximized();
    window_->ShowSelect();
}

void Program::UnloadAll() {
    window_.reset();
    splash_.reset();
}

void Program::EndSession() {
    if (window_) return window_->EndSession();
    Q_EMIT Ended();
}

void Program::Leave() {
    if (window_) window_->engine().Leave();
}

}  // namespace varnello
