#pragma once

#include <QObject>
#include <array>

namespace varnello {

/// Tells that the program has to end because the session does: by a signal (SIGTERM, SIGINT,
/// SIGHUP) or by the desktop's session manager. One at a time, after the application.
class SessionEnd : public QObject {
    Q_OBJECT

public:
    SessionEnd();
    ~SessionEnd() override;

Q_SIGNALS:
    void Asked();

private:
    std::array<int, 2> pipe_{-1, -1};
};

}  // namespace varnello
