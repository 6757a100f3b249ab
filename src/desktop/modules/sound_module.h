#pragma once

#include <QString>
#include <QtPlugin>

namespace varnello {

/// Plays waves on the system's default sound device.
class SoundModule {
public:
    virtual ~SoundModule() = default;
    /// Starts a wave and returns; a wave that still plays is cut off. Silent without a device.
    virtual void Play(const QString& waveFile) = 0;
};

}  // namespace varnello

Q_DECLARE_INTERFACE(varnello::SoundModule, "varnello.SoundModule")
