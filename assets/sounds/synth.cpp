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

void AddPluck(Samples& target, const Pluck& pluck, std::uint64_t seed) {
    // The loop of string and damping; half a sample of its length lies in the damping filter.
    const double period = sampleRate / pluck.frequency - 0.5;
    const std::size_t length = static_cast<std::size_t>(period);
    const double fraction = period - static_cast<double>(length);
    const double loss = std::pow(10.0, -3.0 / (pluck.ring * pluck.frequency));

    // A finger gives a dull pluck: noise made smooth, and taken off a fifth along the string.
    Noise noise(seed);
    Filter soften;
    soften.SetLowPass(400.0 + 3600.0 * pluck.brightness, 0.6);
    Samples shape(length + 1);
    for (double& value : shape) value = soften.Process(noise.Next());
    double mean = 0.0;
    for (double value : shape) mean += value / static_cast<double>(shape.size());
    Samples line(shape.size());
    double power = 0.0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::size_t behind = (i + shape.size() - shape.size() / 5) % shape.size();
        line[i] = (shape[i] - mean) - (shape[behind] - mean);
        power += line[i] * line[i] / static_cast<double>(line.size());
    }
    const double gain = pluck.level / std::sqrt(power);

    double previous = 0.0;
    std::size_t position = 0;
    const std::size_t first = SampleCount(pluck.start);
    for (std::size_t i = first; i < target.size(); ++i) {
        const std::size_t next = (position + 1) % line.size();
        // Between two samples of the line lies the exact length of the string.
        const double tone = line[position] * fraction + line[next] * (1.0 - fraction);
        const double time = static_cast<double>(i - first) / sampleRate;
        target[i] += gain * tone * Strike(std::min(time, 0.004), 0.004, 1.0);
        line[position] = loss * 0.5 * (tone + previous);
        previous = tone;
        position = next;
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
