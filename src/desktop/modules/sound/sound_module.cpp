#include "desktop/modules/sound_module.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QHash>
#include <QMediaDevices>
#include <QThread>
#include <QTimer>
#include <memory>

#include "desktop/modules/sound/mixer.h"

namespace varnello {
namespace {

constexpr qint64 kBufferTime = 60;  // milliseconds that are handed to the device ahead
constexpr int kFeedTime = 8;        // milliseconds between two looks at what it takes
constexpr int kLinger = 1000;       // milliseconds that it stays open behind the last sound

/// Lives in the sound thread and owns the device there, since opening one may take its time. The
/// device is fed by a timer: of small buffers that a device may empty by itself some are never
/// asked to be filled again.
class Player : public QObject {
public:
    Player() : feed_(new QTimer(this)), linger_(new QTimer(this)) {
        feed_->setTimerType(Qt::PreciseTimer);
        feed_->setInterval(kFeedTime);
        linger_->setSingleShot(true);
        linger_->setInterval(kLinger);
        connect(feed_, &QTimer::timeout, this, &Player::Feed);
        connect(linger_, &QTimer::timeout, this, &Player::Rest);
    }
    ~Player() override { Close(); }

    void Play(const QString& waveFile) {
        const Wave* wave = Load(waveFile);
        if (!wave || !Open(*wave)) return;
        mixer_.Start(*wave);
        linger_->start();
        Feed();
        feed_->start();
    }

private:
    const Wave* Load(const QString& waveFile) {
        auto& wave = waves_[waveFile];
        if (!wave) {
            if (auto read = ReadWave(waveFile)) wave = std::make_shared<Wave>(std::move(*read));
        }
        return wave.get();
    }

    /// Whether the default device of this moment is open for the wave's format.
    bool Open(const Wave& wave) {
        QAudioFormat format;
        format.setSampleRate(wave.rate);
        format.setChannelCount(wave.channels);
        format.setSampleFormat(QAudioFormat::Int16);
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (sink_ && !Lost() && device == device_ && sink_->format() == format) return true;
        Close();
        if (device.isNull() || !device.isFormatSupported(format)) return false;
        device_ = device;
        sink_ = std::make_unique<QAudioSink>(device, format);
        sink_->setBufferSize(format.bytesForDuration(kBufferTime * 1000));
        taker_ = sink_->start();
        return taker_ != nullptr;
    }

    bool Lost() const {
        return sink_->error() == QAudio::OpenError || sink_->error() == QAudio::IOError ||
               sink_->error() == QAudio::FatalError;
    }

    void Feed() {
        if (!sink_ || Lost()) return Close();
        std::vector<std::int16_t> samples(static_cast<std::size_t>(sink_->bytesFree()) / 2);
        mixer_.Fill(samples);
        taker_->write(reinterpret_cast<const char*>(samples.data()),
                      static_cast<qint64>(samples.size()) * 2);
    }

    void Close() {
        feed_->stop();
        linger_->stop();
        if (sink_) sink_->stop();
        sink_.reset();
        mixer_ = {};
    }

    void Rest() {
        if (!mixer_.Silent()) return linger_->start();
        Close();
    }

    QHash<QString, std::shared_ptr<Wave>> waves_;
    Mixer mixer_;
    QTimer* feed_;
    QTimer* linger_;
    QAudioDevice device_;
    std::unique_ptr<QAudioSink> sink_;
    QIODevice* taker_ = nullptr;  ///< of the sink
};

/// Hands each wave to the sound thread and returns at once.
class ThreadedSounds : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnello.SoundModule")
    Q_INTERFACES(varnello::SoundModule)

public:
    ThreadedSounds() {
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
