#pragma once

#include <QAbstractButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <vector>

#include "desktop/window/main_window.h"
#include "engine/common/text_file.h"
#include "engine/definitions/catalogue.h"

#include "../counted_store.h"

/// Does something as soon as a modal window of this kind is open. A check that fails in it closes
/// the window.
template <typename Dialog>
void WhenOpen(std::function<void(Dialog&)> act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        timer->deleteLater();
        timer->stop();
        const QPointer<Dialog> open = dialog;
        act(*dialog);
        // What failed in there has left it open, and the test would wait for it.
        if (QTest::currentTestFailed() && open) open->close();
    });
    timer->start(5);
}

/// The child with this accessible name.
template <typename Widget>
Widget* Named(const QWidget& window, const QString& name) {
    for (Widget* child : window.findChildren<Widget*>()) {
        if (child->accessibleName() == name) return child;
    }
    qFatal("no child called %s", qPrintable(name));
}

template <typename Button = QAbstractButton>
Button* Captioned(const QWidget& window, const QString& caption) {
    for (Button* child : window.findChildren<Button*>()) {
        if (child->text() == caption) return child;
    }
    qFatal("no button %s", qPrintable(caption));
}

/// What the screen shows of a part of a window.
inline QImage OnScreen(const QWidget& part) {
    const QWidget& window = *part.window();
    const QPoint at = part.mapTo(&window, QPoint());
    return window.screen()
        ->grabWindow(window.winId(), at.x(), at.y(), part.width(), part.height())
        .toImage();
}

/// Whether the screen shows what the part would look like if it were painted afresh.
inline bool IsPainted(QWidget& part) {
    return OnScreen(part).convertToFormat(QImage::Format_RGB32) ==
           part.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// A main window whose settings live in memory and whose clock the test moves; score files go to a
/// folder of the test's own. Flights aren't paced, the
/// counters stand.
class WindowFixture {
public:
    static constexpr int kNever = 1 << 30;  // milliseconds

    WindowFixture() : window({settings, clock, sounds, std::filesystem::path(Folder())}) {
        window.motion().SetPaced(false);
        window.SetBreath(0);
        window.SetBeat(kNever, 20);
        window.resize(1100, 830);
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
    }

    /// What the counters do every half second; here it's done when a test says so.
    void Beat() { window.menu().Counters().ShowCounters(engine().counters().TimeTick()); }

    std::string Folder() const { return folder.path().toStdString() + "/data"; }
    varnello::Engine& engine() { return window.engine(); }
    const varnello::KesCard& Card(varnello::PicID id) { return engine().table().Card(id); }
    varnello::PicID Top(varnello::Cell cell, int pile) {
        return engine().array().GetTopPicID(cell, pile);
    }

    void Start(const char* game, double number = 1) {
        engine().life().StartGame(game, varnello::GameNumber::Number(number));
    }
    void StartWithoutAutoplay(const char* game, double number = 1) {
        engine().data().Set(varnello::keys::Autoplay, 0);
        Start(game, number);
    }

    /// A point of the view for a point of the table in twips.
    QPoint At(double x, double y) {
        const double left = (window.table().width() - 1032) / 2.0 - 20 / 15.0;
        return {qRound(left) + qRound(x / 15), qRound(y / 15)};
    }
    QPoint CentreOf(varnello::PicID id) { return At(Card(id).Left + 532, Card(id).Top + 720); }
    void Press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&window.table(), button, {}, at);
    }
    void Release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(&window.table(), button, {}, at);
    }
    /// A move with a button held, which the test library's own moves don't carry.
    void Move(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QMouseEvent event(QEvent::MouseMove, at, window.table().mapToGlobal(at), Qt::NoButton,
                          button, {});
        QCoreApplication::sendEvent(&window.table(), &event);
    }
    void Drag(varnello::PicID id, const QPoint& to, Qt::MouseButton button = Qt::LeftButton) {
        Press(CentreOf(id), button);
        Move(to, button);
        Release(to, button);
    }
    /// Drags the top card of a tableau pile onto a reserve pile; both count from 0.
    void DragToReserve(int pile, int reserve) {
        const varnello::KesEmpty& slot = engine().table().PicRes[std::size_t(reserve)];
        Drag(Top(varnello::Cell::Home, pile), At(slot.Left + 532, slot.Top + 720));
    }
    /// Whether the screen shows what the table would look like if it were painted afresh.
    bool ScreenIsTrue() {
        const auto isTrue = [this] { return IsPainted(window.table()); };
        return QTest::qWaitFor(isTrue, 1000);  // a drag is painted with the next frame
    }
    /// The lines of the first player's score file, without their dates.
    std::vector<std::string> Scores() {
        auto lines = varnello::ReadLines(Folder() + "/Player1.sre");
        for (std::string& line : lines) line = line.substr(line.find(',') + 1);
        return lines;
    }

    struct StillMovable : varnello::Clock {
        varnello::DateTime now{.year = 2026, .month = 11, .day = 22, .hour = 13};
        varnello::DateTime Now() const override { return now; }
        double Timer() const override { return 1; }
    };
    struct HeardSounds : varnello::SoundPlayer {
        std::vector<varnello::Sound> heard;
        void Play(varnello::Sound event) override { heard.push_back(event); }
    };

    QTemporaryDir folder;
    varnello::test::CountedStore settings;
    StillMovable clock;
    HeardSounds sounds;
    varnello::MainWindow window;
};
