#include "desktop/platform/sounds.h"

#include <QFile>

#include "desktop/modules/module.h"
#include "desktop/platform/text.h"

namespace varnello {

QStringList WavesOf(Sound event) {
    QStringList waves;
    for (int variant = 1;; ++variant) {
        const QString file =
            QStringLiteral(":/sounds/%1-%2.wav").arg(ToQt(RowOf(event).Wave)).arg(variant);
        if (!QFile::exists(file)) return waves;
        waves.append(file);
    }
}

QString WaveTurns::Next(Sound event) {
    QStringList& waves = waves_[ToQt(RowOf(event).Wave)];
    if (waves.isEmpty()) waves = WavesOf(event);
    if (waves.isEmpty()) return {};
    waves.append(waves.takeFirst());
    return waves.last();
}

void WaveSounds::Play(Sound event) {
    if (!tried_) {
        tried_ = true;
        module_ = qobject_cast<SoundModule*>(LoadModule(QStringLiteral("varnello-sound")));
    }
    if (module_) module_->Play(turns_.Next(event));
}

}  // namespace varnello
