#pragma once

#include <span>
#include <vector>

#include "desktop/modules/sound/wave.h"

namespace varnello {

/// Turns waves into one stream of samples, one wave at a time: a new one begins at once, and what
/// it cuts off fades away under its beginning, so that nothing clicks. All waves are of one format.
class Mixer {
public:
    /// Begins a wave, which must live until the next one begins.
    void Start(const Wave& wave);
    /// The next samples, silence behind a wave's end.
    void Fill(std::span<std::int16_t> samples);
    /// Whether nothing is heard any more.
    bool Silent() const { return rest_.empty() && tail_.empty(); }

private:
    std::span<const std::int16_t> rest_;
    std::vector<float> tail_;  ///< what still fades away, the next sample last
};

}  // namespace varnello
