#pragma once

#include <QMap>
#include <QSettings>
#include <filesystem>
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
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
        bool operator==(const Stamp&) const = default;
    };

    void Open();
    Stamp StampNow() const;
    void Refresh() const;

    std::unique_ptr<QSettings> file_;
    mutable Stamp read_;
    bool changing_ = false;
    QMap<QString, QVariant> before_;  ///< what the change under way has overwritten
};

}  // namespace varnello
