#include "desktop/modules/sound/mixer.h"

#include <algorithm>
#include <cmath>

namespace varnello {
namespace {

constexpr double kFade = 0.003;  // seconds

}  // namespace

void Mixer::Start(const Wave& wave) {
    const auto channels = static_cast<std::size_t>(wave.channels);
    const std::size_t frames = static_cast<std::size_t>(std::lround(kFade * wave.rate));
    std::vector<float> tail(frames * channels);
    for (std::size_t i = 0; i < tail.size(); ++i) {
        const float cut = i < rest_.size() ? float(rest_[i]) : 0;
        const float fading = i < tail_.size() ? tail_[tail_.size() - 1 - i] : 0;
        const std::size_t frame = i / channels;
        const float left = 1 - float(frame) / float(frames);
        tail[tail.size() - 1 - i] = (cut + fading) * left;
    }
    tail_ = std::move(tail);
    rest_ = wave.samples;
}

void Mixer::Fill(std::span<std::int16_t> samples) {
    for (std::int16_t& sample : samples) {
        float value = 0;
        if (!rest_.empty()) {
            value = rest_.front();
            rest_ = rest_.subspan(1);
        }
        if (!tail_.empty()) {
            value += tail_.back();
            tail_.pop_back();
        }
        sample = static_cast<std::int16_t>(std::clamp(std::lround(value), -32768L, 32767L));
    }
}

}  // namespace varnello
