#include "desktop/modules/sound/wave.h"

#include <QFile>
#include <QtEndian>

namespace varnello {
namespace {

constexpr qsizetype kFileHeader = 12;
constexpr qsizetype kChunkHeader = 8;
constexpr qsizetype kFormatLength = 16;
constexpr quint16 kPlainSamples = 1;

}  // namespace

std::optional<Wave> ParseWave(const QByteArray& bytes) {
    if (!bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE") return std::nullopt;
    Wave wave;
    qsizetype at = kFileHeader;
    while (at + kChunkHeader <= bytes.size()) {
        const QByteArray name = bytes.mid(at, 4);
        const qsizetype length = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
        const QByteArray chunk = bytes.mid(at + kChunkHeader, length);
        if (chunk.size() < length) return std::nullopt;
        const char* data = chunk.constData();
        if (name == "fmt " && length >= kFormatLength) {
            if (qFromLittleEndian<quint16>(data) != kPlainSamples) return std::nullopt;
            if (qFromLittleEndian<quint16>(data + 14) != 16) return std::nullopt;
            wave.channels = qFromLittleEndian<quint16>(data + 2);
            wave.rate = static_cast<int>(qFromLittleEndian<quint32>(data + 4));
        } else if (name == "data") {
            if (wave.rate <= 0 || wave.channels <= 0) return std::nullopt;
            wave.samples.resize(static_cast<std::size_t>(length / 2));
            qFromLittleEndian<quint16>(data, length / 2, wave.samples.data());
            return wave;
        }
        at += kChunkHeader + length + length % 2;
    }
    return std::nullopt;
}

std::optional<Wave> ReadWave(const QString& file) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly)) return std::nullopt;
    return ParseWave(opened.readAll());
}

}  // namespace varnello
