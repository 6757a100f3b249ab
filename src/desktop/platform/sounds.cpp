#include "desktop/platform/sounds.h"

#include "desktop/modules/module.h"

namespace varnello {
namespace {

QString WaveOf(Sound event) {
    switch (event) {
        case Sound::Start: return QStringLiteral(":/sounds/start.wav");
        case Sound::CardUp: return QStringLiteral(":/sounds/cardup.wav");
        case Sound::CardDown: return QStringLiteral(":/sounds/carddown.wav");
        case Sound::AutoPlay: return QStringLiteral(":/sounds/autoplay.wav");
        case Sound::Undo:
        case Sound::Redo: return QStringLiteral(":/sounds/undo.wav");
        case Sound::Win: break;
    }
    return QStringLiteral(":/sounds/win.wav");
}

}  // namespace

void WaveSounds::Play(Sound event) {
    if (!tried_) {
        tried_ = true;
        module_ = qobject_cast<SoundModule*>(LoadModule(QStringLiteral("varnello-sound")));
    }
    if (module_) module_->Play(WaveOf(event));
}

}  // namespace varnello
