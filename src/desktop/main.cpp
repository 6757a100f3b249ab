#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "desktop/appearance/icons.h"
#include "desktop/platform/session_end.h"
#include "desktop/platform/settings_store.h"
#include "desktop/platform/sounds.h"
#include "desktop/platform/system.h"
#include "desktop/platform/text.h"
#include "desktop/window/main_window.h"
#include "desktop/window/splash.h"

namespace {

QtMessageHandler usualHandler = nullptr;
std::unique_ptr<varnello::MainWindow>* running = nullptr;  ///< while the event loop runs

/// No sound device means silence, so what the sound library says about it isn't passed on.
void AfterScreen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const bool ofSound =
        text.startsWith(QStringLiteral("PulseAudioService")) ||
        (context.category && std::strncmp(context.category, "qt.multimedia", 13) == 0);
    if (!ofSound) usualHandler(type, context, text);
}

/// Until the toolkit has a screen, only its last word counts: one sentence instead of its many.
void BeforeScreen(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("Varnello can't start: there is no graphical display that it can open.\n", stderr);
    std::_Exit(1);
}

/// Answers what needs no display; whether it did.
bool AnswerInText(const std::string& question) {
    std::string text(varnello::kProductName);
    if (question == "--version") {
        text.append(" ").append(varnello::kVersion);
    } else if (question == "--help") {
        text.append(
            " plays patience card games.\n\n"
            "usage: varnello [toolkit option...]\n"
            "       varnello --help | --version");
    } else {
        return false;
    }
    std::puts(text.c_str());
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace varnello;
    if (argc == 2 && AnswerInText(argv[1])) return 0;
    usualHandler = qInstallMessageHandler(BeforeScreen);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    qInstallMessageHandler(AfterScreen);
    QApplication::setApplicationName(ToQt(kProductName));
    QApplication::setApplicationVersion(ToQt(kVersion));
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setDesktopFileName(QStringLiteral("varnello"));
    QApplication::setQuitOnLastWindowClosed(false);

    FileSettings settings;
    SystemClock clock;
    WaveSounds sounds;
    std::unique_ptr<MainWindow> window;

    SessionEnd sessionEnd;
    QObject::connect(&sessionEnd, &SessionEnd::Asked, &application, [&] {
        if (window) return window->EndSession();
        QApplication::exit(0);
    });
    // The toolkit leaves by `exit` when the display goes away; what can be booked is booked then.
    running = &window;
    std::atexit([] {
        if (running && *running) (*running)->engine().Leave();
    });

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
            window->ShowSelect();
        },
        Qt::QueuedConnection);
    splash->show();
    const int status = QApplication::exec();
    running = nullptr;
    return status;
}
