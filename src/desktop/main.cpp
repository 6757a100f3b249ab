#include <QApplication>
#include <cstdio>
#include <memory>

#include "desktop/platform/settings_store.h"
#include "desktop/platform/sounds.h"
#include "desktop/platform/system.h"
#include "desktop/platform/text.h"
#include "desktop/window/main_window.h"
#include "desktop/window/splash.h"

namespace {

QtMessageHandler usualHandler = nullptr;

/// No sound device means silence, so what the sound library says about it isn't passed on.
void AfterScreen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QStringLiteral("PulseAudioService"))) usualHandler(type, context, text);
}

/// Until the toolkit has a screen, only its last word counts: one sentence instead of its many.
void BeforeScreen(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("Varnello can't start: there is no graphical display that it can open.\n", stderr);
    std::_Exit(1);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace varnello;
    usualHandler = qInstallMessageHandler(BeforeScreen);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    qInstallMessageHandler(AfterScreen);
    QApplication::setApplicationName(ToQt(kProductName));
    QApplication::setApplicationVersion(ToQt(kVersion));
    QApplication::setDesktopFileName(QStringLiteral("varnello"));
    QApplication::setQuitOnLastWindowClosed(false);

    FileSettings settings;
    SystemClock clock;
    WaveSounds sounds;
    std::unique_ptr<MainWindow> window;

    auto splash = std::make_unique<Splash>();
    QObject::connect(
        splash.get(), &Splash::Ended, &application,
        [&] {
            splash.reset();
            window = std::make_unique<MainWindow>(
                MainWindow::System{settings, clock, sounds, DataFolder()});
            QObject::connect(window.get(), &MainWindow::Closed, &application,
                             [] { QApplication::exit(0); });
            window->showMaximized();
            window->ShowSelectModeless();
        },
        Qt::QueuedConnection);
    splash->show();
    return QApplication::exec();
}
