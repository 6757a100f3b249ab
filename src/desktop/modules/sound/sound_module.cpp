#include "desktop/modules/sound_module.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QFile>
#include <QHash>
#include <QLoggingCategory>
#include <QMediaDevices>
#include <QThread>
#include <memory>

namespace varnello {
namespace {

constexpr qsizetype kWaveHeader = 44;  // bytes before the samples in the program's own waves

/// Lives in the sound thread and owns the device there, since opening one may take its time.
class Player : public QObject {
public:
    void Play(const QString& waveFile) {
        const QByteArray samples = Samples(waveFile);
        if (!sink_ && !Open()) return;
        sink_->stop();
        buffer_.close();
        buffer_.setData(samples);
        buffer_.open(QIODevice::ReadOnly);
        sink_->start(&buffer_);
    }

private:
    QByteArray Samples(const QString& waveFile) {
        QByteArray& samples = waves_[waveFile];
        if (samples.isEmpty()) {
            QFile file(waveFile);
            if (file.open(QIODevice::ReadOnly)) samples = file.readAll().mid(kWaveHeader);
        }
        return samples;
    }

    bool Open() {
        QAudioFormat format;
        format.setSampleRate(44100);
        format.setChannelCount(1);
        format.setSampleFormat(QAudioFormat::Int16);
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (device.isNull() || !device.isFormatSupported(format)) return false;
        sink_ = std::make_unique<QAudioSink>(device, format);
        return true;
    }

    QHash<QString, QByteArray> waves_;
    QBuffer buffer_;
    std::unique_ptr<QAudioSink> sink_;
};

/// Hands each wave to the sound thread and returns at once.
class ThreadedSounds : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnello.SoundModule")
    Q_INTERFACES(varnello::SoundModule)

public:
    ThreadedSounds() {
        QLoggingCategory::setFilterRules(QStringLiteral("qt.multimedia.*=false"));
        player_->moveToThread(&thread_);
        connect(&thread_, &QThread::finished, player_, &QObject::deleteLater);
        thread_.start();
    }
    ~ThreadedSounds() override {
        thread_.quit();
        thread_.wait();
    }

    void Play(const QString& waveFile) override {
        QMetaObject::invokeMethod(
            player_, [player = player_, waveFile] { player->Play(waveFile); },
            Qt::QueuedConnection);
    }

private:
    QThread thread_;
    Player* player_ = new Player;  // deleted in its thread
};

}  // namespace
}  // namespace varnello

#include "sound_module.moc"
