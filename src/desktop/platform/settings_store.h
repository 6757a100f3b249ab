#pragma once

#include <QSettings>

#include "engine/desktop.h"

namespace varnello {

/// The settings in a text file of the user's own. Each write is on disk when `Write` returns.
class FileSettings : public SettingsStore {
public:
    FileSettings();

    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;

private:
    QSettings file_;
};

}  // namespace varnello
