#include "synth.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {
constexpr double pi = std::numbers::pi;
}

std::size_t SampleCount(double seconds) {
    return static_cast<std::size_t>(std::lround(seconds * sampleRate));
}

Samples Silence(double seconds) { return Samples(SampleCount(seconds), 0.0); }

double Noise::Next() {
    // A 64 bit xorshift with a final multiplication: quick and the same everywhere.
    state_ ^= state_ >> 12;
    state_ ^= state_ << 25;
    state_ ^= state_ >> 27;
    const std::uint64_t bits = (state_ * 0x2545F4914F6CDD1DULL) >> 11;
    return static_cast<double>(bits) * (2.0 / 9007199254740992.0) - 1.0;
}

Filter::Shape Filter::Prepare(double frequency, double quality) {
    const double omega = 2.0 * pi * frequency / sampleRate;
    const Shape shape{std::cos(omega), std::sin(omega) / (2.0 * quality)};
    const double scale = 1.0 / (1.0 + shape.alpha);
    a1_ = -2.0 * shape.cosine * scale;
    a2_ = (1.0 - shape.alpha) * scale;
    return shape;
}

void Filter::SetBandPass(double frequency, double quality) {
    const Shape shape = Prepare(frequency, quality);
    b0_ = shape.alpha / (1.0 + shape.alpha);
    b1_ = 0.0;
    b2_ = -b0_;
}

void Filter::SetLowPass(double frequency, double quality) {
    const Shape shape = Prepare(frequency, quality);
    b1_ = (1.0 - shape.cosine) / (1.0 + shape.alpha);
    b0_ = b1_ / 2.0;
    b2_ = b0_;
}

void Filter::SetHighPass(double frequency, double quality) {
    const Shape shape = Prepare(frequency, quality);
    b1_ = -(1.0 + shape.cosine) / (1.0 + shape.alpha);
    b0_ = -b1_ / 2.0;
    b2_ = b0_;
}

void Filter::SetHighShelf(double frequency, double quality, double gain) {
    const double slope = std::tan(pi * frequency / sampleRate);
    const double high = std::pow(10.0, gain / 20.0);
    const double middle = std::pow(high, 0.4996667741545416);
    const double scale = 1.0 / (1.0 + slope / quality + slope * slope);
    b0_ = (high + middle * slope / quality + slope * slope) * scale;
    b1_ = 2.0 * (slope * slope - high) * scale;
    b2_ = (high - middle * slope / quality + slope * slope) * scale;
    a1_ = 2.0 * (slope * slope - 1.0) * scale;
    a2_ = (1.0 - slope / quality + slope * slope) * scale;
}

double Filter::Process(double input) {
    const double output = b0_ * input + state1_;
    state1_ = b1_ * input - a1_ * output + state2_;
    state2_ = b2_ * input - a2_ * output;
    return output;
}

double Strike(double time, double attack, double decay) {
    if (time < 0.0) return 0.0;
    if (time < attack) return 0.5 - 0.5 * std::cos(pi * time / attack);
    return std::exp(-(time - attack) / decay);
}

void AddBurst(Samples& target, const Burst& burst, std::uint64_t seed) {
    Noise noise(seed);
    Filter filter;
    filter.SetBandPass(burst.frequency, burst.quality);
    // A narrow band lets less noise through; make up for it so that levels can be compared.
    const double gain = burst.level * std::sqrt(burst.quality * 4000.0 / burst.frequency);
    const std::size_t first = SampleCount(burst.start);
    const std::size_t last =
        std::min(target.size(), first + SampleCount(burst.attack + 8.0 * burst.decay));
    for (std::size_t i = first; i < last; ++i) {
        const double time = static_cast<double>(i - first) / sampleRate;
        target[i] += gain * filter.Process(noise.Next()) * Strike(time, burst.attack, burst.decay);
    }
}

void AddKnock(Samples& target, double start, double level, double attack,
              std::initializer_list<Mode> modes) {
    const std::size_t first = SampleCount(start);
    for (const Mode& mode : modes) {
        for (std::size_t i = first; i < target.size(); ++i) {
            const double time = static_cast<double>(i - first) / sampleRate;
            target[i] += level * mode.level * std::sin(2.0 * pi * mode.frequency * time) *
                         Strike(time, attack, mode.decay);
        }
    }
}

void AddPluck(Samples& target, const Pluck& pluck) {
    constexpr int partials = 6;
    constexpr double place = 0.21;  // of the finger along the string
    constexpr double attack = 0.005;
    const std::size_t first = SampleCount(pluck.start);
    for (int partial = 1; partial <= partials; ++partial) {
        // A string drawn aside at a point, its corner made round by the finger's breadth.
        const double level =
            std::sin(pi * place * partial) / std::sin(pi * place) / std::pow(partial, 1.9);
        const double decay = pluck.ring / (0.6 + 0.4 * partial);
        // A stiff string's partials lie a little wide.
        const double frequency =
            pluck.frequency * partial * std::sqrt(1.0 + 0.0001 * partial * partial);
        for (std::size_t i = first; i < target.size(); ++i) {
            const double time = static_cast<double>(i - first) / sampleRate;
            target[i] +=
                level * std::sin(2.0 * pi * frequency * time) * Strike(time, attack, decay);
        }
    }
}

void ApplyHighPass(Samples& samples, double frequency) {
    Filter filter;
    filter.SetHighPass(frequency, 0.7);
    for (double& sample : samples) sample = filter.Process(sample);
}

void ApplyLowPass(Samples& samples, double frequency) {
    Filter filter;
    filter.SetLowPass(frequency, 0.7);
    for (double& sample : samples) sample = filter.Process(sample);
}

void RoundPeaks(Samples& samples, double drive) {
    double peak = 0.0;
    for (double sample : samples) peak = std::max(peak, std::abs(sample));
    if (peak <= 0.0) return;
    for (double& sample : samples) sample = std::tanh(drive * sample / peak);
}

void FadeEnds(Samples& samples, double fadeIn, double fadeOut) {
    const std::size_t count = samples.size();
    const auto rise = [](double part) { return 0.5 - 0.5 * std::cos(pi * part); };
    const std::size_t in = std::min(count, SampleCount(fadeIn));
    for (std::size_t i = 0; i < in; ++i)
        samples[i] *= rise(static_cast<double>(i) / static_cast<double>(in));
    const std::size_t out = std::min(count, SampleCount(fadeOut));
    for (std::size_t i = 0; i < out; ++i)
        samples[count - 1 - i] *= rise(static_cast<double>(i) / static_cast<double>(out));
}
