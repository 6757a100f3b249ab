#pragma once

#include <filesystem>

#include "engine/desktop.h"

namespace varnello {

/// The system's clock in local time.
class SystemClock : public Clock {
public:
    DateTime Now() const override;
    std::int64_t Seconds() const override;
    double Timer() const override;
};

/// The disk that the file system keeps.
class SystemDisk : public Disk {
public:
    void Flush(const std::filesystem::path& path) const override;
};

/// `AppDir`: the folder "Varnello" in the user's data folder.
std::filesystem::path DataFolder();

}  // namespace varnello
