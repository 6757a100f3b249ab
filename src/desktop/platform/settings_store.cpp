#include "desktop/platform/settings_store.h"

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

QString KeyOf(std::string_view section, std::string_view key) {
    return ToQt(section) + '/' + ToQt(key);
}

}  // namespace

FileSettings::FileSettings()
    : file_(QSettings::IniFormat, QSettings::UserScope, ToQt(kProductName), ToQt(kProductName)) {
    file_.setFallbacksEnabled(false);
}

std::string FileSettings::Read(std::string_view section, std::string_view key,
                               std::string_view fallback) const {
    const QVariant stored = file_.value(KeyOf(section, key));
    // A text with commas, written by hand without quotes, reads as a list.
    const QString text = stored.typeId() == QMetaType::QStringList
                             ? stored.toStringList().join(QStringLiteral(", "))
                             : stored.toString();
    return stored.isValid() ? text.toStdString() : std::string(fallback);
}

void FileSettings::Write(std::string_view section, std::string_view key, std::string_view text) {
    file_.setValue(KeyOf(section, key), ToQt(text));
    file_.sync();
}

}  // namespace varnello
