#pragma once

#include <QMap>
#include <QSettings>
#include <cstdint>
#include <memory>

#include "engine/desktop.h"

namespace varnello {

/// The settings in a text file of the user's own. Each write is on disk when `Write` returns, and a
/// read sees what another copy of the program wrote.
class FileSettings : public SettingsStore {
public:
    FileSettings();

    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    bool Change(const std::function<void()>& change) override;

private:
    /// What tells that the file isn't the one that was read.
    struct Stamp {
        std::uint64_t device = 0, file = 0;  ///< a change puts a new file in the place of the old
        std::int64_t seconds = 0, nanoseconds = 0;
        std::int64_t size = 0;
        bool operator==(const Stamp&) const = default;
    };

    void Open();
    Stamp StampNow() const;
    void Refresh() const;

    std::unique_ptr<QSettings> file_;
    QByteArray path_;  ///< of the file, as the system spells it
    mutable Stamp read_;
    bool changing_ = false;
    QMap<QString, QVariant> before_;  ///< what the change under way has overwritten
};

}  // namespace varnello
