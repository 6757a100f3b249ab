#include "desktop/platform/settings_store.h"

#include <sys/stat.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr int kLongestWait = 3000;  // milliseconds for another copy's change
constexpr int kLeftoverAge = 3600;  // seconds

QString KeyOf(std::string_view section, std::string_view key) {
    return ToQt(section) + '/' + ToQt(key);
}

/// Removes what writes have left behind that the system's end cut short: copies of the settings
/// under a name with six random letters. Another program may be about to use a fresh one.
void RemoveLeftovers(const QString& path) {
    const QFileInfo settings(path);
    const QDateTime old = QDateTime::currentDateTime().addSecs(-kLeftoverAge);
    const QStringList pattern{settings.fileName() + QStringLiteral(".??????")};
    for (const QFileInfo& file : settings.dir().entryInfoList(pattern, QDir::Files)) {
        const QString letters = file.suffix();
        if (letters == letters.toLower()) continue;  // somebody's own name for it
        if (file.lastModified() < old) QFile::remove(file.filePath());
    }
}

}  // namespace

FileSettings::FileSettings() {
    Open();
    RemoveLeftovers(file_->fileName());
}

void FileSettings::Open() {
    QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
                   ToQt(kProductName) + '/' + ToQt(kProductName) + QStringLiteral(".ini");
    const QFileInfo there(path);
    if (there.exists() && !there.isFile()) {
        // Something that may be waited for, or never ends, isn't even opened.
        qWarning("%s", qPrintable(QCoreApplication::translate(
                                      "Settings",
                                      "%1 is no plain file; the settings of this run aren't kept.")
                                      .arg(path)));
        path += QStringLiteral("/none");
    }
    file_ = std::make_unique<QSettings>(path, QSettings::IniFormat);
    file_->setFallbacksEnabled(false);
    path_ = QFile::encodeName(file_->fileName());
    read_ = StampNow();
}

FileSettings::Stamp FileSettings::StampNow() const {
    struct stat found {};
    if (stat(path_.constData(), &found) != 0) return {};
    return {found.st_dev, found.st_ino, found.st_mtim.tv_sec, found.st_mtim.tv_nsec, found.st_size};
}

void FileSettings::Refresh() const {
    const Stamp now = StampNow();
    if (now == read_) return;
    file_->sync();
    read_ = now;
}

std::string FileSettings::Read(std::string_view section, std::string_view key,
                               std::string_view fallback) const {
    if (!changing_) Refresh();
    const QVariant stored = file_->value(KeyOf(section, key));
    // A text with commas, written by hand without quotes, reads as a list.
    const QString text = stored.typeId() == QMetaType::QStringList
                             ? stored.toStringList().join(QStringLiteral(", "))
                             : stored.toString();
    return stored.isValid() ? text.toStdString() : std::string(fallback);
}

void FileSettings::Write(std::string_view section, std::string_view key, std::string_view text) {
    const QString name = KeyOf(section, key);
    if (!changing_) Refresh();
    const QVariant old = file_->value(name);
    if (old.isValid() && old.toString() == ToQt(text)) return;
    if (changing_ && !before_.contains(name)) before_.insert(name, old);
    file_->setValue(name, ToQt(text));
    if (changing_) return;
    file_->sync();
    read_ = StampNow();
}

bool FileSettings::Change(const std::function<void()>& change) {
    QDir().mkpath(QFileInfo(file_->fileName()).path());
    QLockFile lock(file_->fileName() + QStringLiteral(".change"));
    if (!lock.tryLock(kLongestWait)) return false;
    file_->sync();
    changing_ = true;
    before_.clear();
    change();
    changing_ = false;
    if (before_.isEmpty()) return true;
    file_->sync();
    const bool written = file_->status() == QSettings::NoError;
    if (!written) {
        for (auto old = before_.cbegin(); old != before_.cend(); ++old) {
            if (old.value().isValid()) {
                file_->setValue(old.key(), old.value());
            } else {
                file_->remove(old.key());
            }
        }
        Open();  // an error sticks to the object
    }
    read_ = StampNow();
    return written;
}

}  // namespace varnello
