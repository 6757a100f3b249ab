#pragma once

#include "desktop/modules/sound_module.h"
#include "engine/desktop.h"

namespace varnello {

/// Plays the program's waves. The sound module is loaded with the first of them.
class WaveSounds : public SoundPlayer {
public:
    void Play(Sound event) override;

private:
    SoundModule* module_ = nullptr;
    bool tried_ = false;
};

}  // namespace varnello
