#include "desktop/platform/session_end.h"

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSocketNotifier>
#include <csignal>

namespace varnello {
namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

volatile std::sig_atomic_t wakeUp = -1;  // where a signal is written to

// Almost nothing may be done inside a signal: the event loop does the rest.
void OnSignal(int) {
    const char byte = 1;
    if (wakeUp >= 0) [[maybe_unused]]
        const auto ignored = write(wakeUp, &byte, 1);
}

}  // namespace

SessionEnd::SessionEnd() {
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::Asked,
            Qt::DirectConnection);
    if (pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (read(pipe_[0], bytes, sizeof bytes) > 0) continue;
        Q_EMIT Asked();
    });
    wakeUp = pipe_[1];
    for (const int number : kSignals) std::signal(number, OnSignal);
}

SessionEnd::~SessionEnd() {
    for (const int number : kSignals) std::signal(number, SIG_DFL);
    wakeUp = -1;
    for (const int end : pipe_) {
        if (end >= 0) close(end);
    }
}

}  // namespace varnello
