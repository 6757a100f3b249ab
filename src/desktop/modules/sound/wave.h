#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace varnello {

/// Uncompressed sound of 16 bits a sample.
struct Wave {
    int rate = 0;      ///< samples a second, of each channel
    int channels = 0;  ///< whose samples take turns
    std::vector<std::int16_t> samples;
};

/// What a wave file holds; nothing for a file of another kind.
std::optional<Wave> ParseWave(const QByteArray& bytes);
std::optional<Wave> ReadWave(const QString& file);

}  // namespace varnello
