#include "wavefile.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

namespace {

constexpr std::size_t headerBytes = 44;
constexpr double fullScale = 32767.0;

void Append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFFu));
}

std::string Header(std::uint32_t dataBytes) {
    const auto rate = static_cast<std::uint32_t>(sampleRate);
    std::string bytes;
    bytes.append("RIFF");
    Append(bytes, 36 + dataBytes, 4);
    bytes.append("WAVEfmt ");
    Append(bytes, 16, 4);  // length of the format block
    Append(bytes, 1, 2);   // plain samples
    Append(bytes, 1, 2);   // one channel
    Append(bytes, rate, 4);
    Append(bytes, rate * 2, 4);  // bytes a second
    Append(bytes, 2, 2);         // bytes a sample
    Append(bytes, 16, 2);        // bits a sample
    bytes.append("data");
    Append(bytes, dataBytes, 4);
    return bytes;
}

}  // namespace

bool WriteWave(const std::filesystem::path& path, const Samples& samples) {
    std::string bytes = Header(static_cast<std::uint32_t>(samples.size() * 2));
    for (double sample : samples) {
        const auto value = static_cast<std::int32_t>(std::lround(sample * fullScale));
        Append(bytes, static_cast<std::uint32_t>(value), 2);
    }

    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}

Samples ReadWave(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    Samples samples;
    for (std::size_t i = headerBytes; i + 1 < bytes.size(); i += 2) {
        const unsigned low = static_cast<unsigned char>(bytes[i]);
        const unsigned high = static_cast<unsigned char>(bytes[i + 1]);
        samples.push_back(static_cast<std::int16_t>(high << 8U | low) / fullScale);
    }
    return samples;
}
