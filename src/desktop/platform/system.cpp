#include "desktop/platform/system.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDateTime>
#include <QStandardPaths>

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {

DateTime SystemClock::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {.year = date.year(),
            .month = date.month(),
            .day = date.day(),
            .hour = time.hour(),
            .minute = time.minute(),
            .second = time.second()};
}

std::int64_t SystemClock::Seconds() const { return QDateTime::currentSecsSinceEpoch(); }

double SystemClock::Timer() const {
    // A generator is seeded from the first 21 binary digits of a number. All milliseconds since
    // 1970 have them in common for a quarter of an hour.
    constexpr qint64 kFirst = 1 << 20;
    return static_cast<double>(kFirst + QDateTime::currentMSecsSinceEpoch() % kFirst);
}

void SystemDisk::Flush(const std::filesystem::path& path) const {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    if (std::filesystem::is_directory(path)) {
        fsync(file);
    } else {
        fdatasync(file);
    }
    close(file);
}

std::filesystem::path DataFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return std::filesystem::path(folder.toStdU16String()) / kProductName;
}

}  // namespace varnello
