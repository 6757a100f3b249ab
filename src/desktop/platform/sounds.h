#pragma once

#include <QHash>
#include <QStringList>

#include "desktop/modules/sound_module.h"
#include "engine/desktop.h"

namespace varnello {

/// The files of an event's wave, which are heard in turn.
QStringList WavesOf(Sound event);

/// Takes the files of each wave in turn.
class WaveTurns {
public:
    /// The file to play; empty when the program has none.
    QString Next(Sound event);

private:
    QHash<QString, QStringList> waves_;  ///< those of each wave, the next one first
};

/// Plays the program's waves. The sound module is loaded with the first of them.
class WaveSounds : public SoundPlayer {
public:
    void Play(Sound event) override;

private:
    WaveTurns turns_;
    SoundModule* module_ = nullptr;
    bool tried_ = false;
};

}  // namespace varnello
