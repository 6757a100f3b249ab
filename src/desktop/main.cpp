#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "desktop/accessible/windows.h"
#include "desktop/appearance/icons.h"
#include "desktop/appearance/plain_buttons.h"
#include "desktop/platform/session_end.h"
#include "desktop/platform/settings_store.h"
#include "desktop/platform/sounds.h"
#include "desktop/platform/system.h"
#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "desktop/window/program.h"

namespace {

/// Many of these texts are told where there is no application that could translate them.
QString Translated(const char* english) { return varnello::Translated("Start", english); }

QtMessageHandler usualHandler = nullptr;
varnello::Program* running = nullptr;  ///< while the event loop runs

/// No sound device means silence, so what the sound library says about it isn't passed on.
void AfterScreen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const bool ofSound =
        text.startsWith(QStringLiteral("PulseAudioService")) ||
        (context.category && std::strncmp(context.category, "qt.multimedia", 13) == 0);
    if (!ofSound) usualHandler(type, context, text);
}

/// Until the toolkit has a screen its words are kept, and told when they explain why there is none.
void BeforeScreen(QtMsgType type, const QMessageLogContext&, const QString& text) {
    static std::string reasons;
    reasons.append("  ").append(text.toStdString()).append("\n");
    if (type != QtFatalMsg) return;
    const bool display = qEnvironmentVariableIsSet("DISPLAY") ||
                         qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const QString why = Translated(
        display ? QT_TRANSLATE_NOOP(
                      "Start", "Varnello can't start: the toolkit can't use the display. It says:")
                : QT_TRANSLATE_NOOP("Start",
                                    "Varnello can't start: there is no graphical display. The "
                                    "toolkit says:"));
    std::fprintf(stderr, "%s\n%s", qPrintable(why), reasons.c_str());
    std::_Exit(1);
}

/// What the toolkit has left of the command line is nothing that anybody knows.
bool RefuseUnknown(int argc, char** argv) {
    if (argc < 2) return false;
    const QString refusal = Translated(
        QT_TRANSLATE_NOOP("Start", "Varnello doesn't know \"%1\"; see varnello --help."));
    std::fprintf(stderr, "%s\n", qPrintable(refusal.arg(QString::fromLocal8Bit(argv[1]))));
    return true;
}

/// Answers what needs no display; whether it did.
bool AnswerInText(const std::string& question) {
    QString text;
    if (question == "--version") {
        text = varnello::ToQt(varnello::kProductName) + ' ' + varnello::ToQt(varnello::kVersion);
    } else if (question == "--help") {
        text = Translated(QT_TRANSLATE_NOOP("Start",
                                            "Varnello plays patience card games.\n\n"
                                            "usage: varnello [toolkit option...]\n"
                                            "       varnello --help | --version"));
    } else {
        return false;
    }
    std::puts(qPrintable(text));
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace varnello;
    LoadTranslations();
    if (argc == 2 && AnswerInText(argv[1])) return 0;
    usualHandler = qInstallMessageHandler(BeforeScreen);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setStyle(new varnello::PlainButtons);
    if (RefuseUnknown(argc, argv)) return 2;
    qInstallMessageHandler(AfterScreen);
    InstallTranslations();
    QApplication::setApplicationName(ToQt(kProductName));
    QApplication::setApplicationVersion(ToQt(kVersion));
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setDesktopFileName(QStringLiteral("varnello"));
    QApplication::setQuitOnLastWindowClosed(false);

    DescribeWindows();

    FileSettings settings;
    SystemClock clock;
    WaveSounds sounds;
    Program program({settings, clock, sounds, DataFolder()});
    QObject::connect(&program, &Program::Ended, &application, [] { QApplication::exit(0); });
    SessionEnd sessionEnd;
    QObject::connect(&sessionEnd, &SessionEnd::Asked, &program, &Program::EndSession);
    // The toolkit leaves by `exit` when the display goes away; what can be booked is booked then.
    running = &program;
    std::atexit([] {
        if (running) running->Leave();
    });

    program.Main();
    const int status = QApplication::exec();
    running = nullptr;
    program.UnloadAll();
    return status;
}
