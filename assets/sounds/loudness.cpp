#include "loudness.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double silence = -120.0;
constexpr double blockSeconds = 0.4;
constexpr double stepSeconds = 0.01;

// What the ear makes of a frequency: the head lifts the treble, the bass counts less.
Samples Weighted(Samples samples) {
    Filter head;
    head.SetHighShelf(1681.974, 0.7072, 3.99984);
    Filter bass;
    bass.SetHighPass(38.135, 0.5003);
    for (double& sample : samples) sample = bass.Process(head.Process(sample));
    return samples;
}

// Mean squares of the blocks that begin at each step from `from` on and before `to`.
std::vector<double> BlockPowers(const Samples& samples, double from, double to) {
    Samples padded = Weighted(samples);
    padded.resize(std::max(padded.size(), SampleCount(from)) + SampleCount(blockSeconds));
    Samples sums(padded.size() + 1);
    for (std::size_t i = 0; i < padded.size(); ++i) sums[i + 1] = sums[i] + padded[i] * padded[i];
    const std::size_t block = SampleCount(blockSeconds);
    std::vector<double> powers;
    for (std::size_t first = SampleCount(from);
         first + block <= padded.size() && (powers.empty() || first < SampleCount(to));
         first += SampleCount(stepSeconds)) {
        powers.push_back((sums[first + block] - sums[first]) / static_cast<double>(block));
    }
    return powers;
}

double LoudnessOf(double power) {
    return power > 0.0 ? std::max(silence, -0.691 + 10.0 * std::log10(power)) : silence;
}

double MeanAbove(const std::vector<double>& powers, double gate) {
    double sum = 0.0;
    double count = 0.0;
    for (const double power : powers) {
        if (LoudnessOf(power) <= gate) continue;
        sum += power;
        count += 1.0;
    }
    return count > 0.0 ? sum / count : 0.0;
}

}  // namespace

double MomentaryLoudness(const Samples& samples, double from, double to) {
    const std::vector<double> powers = BlockPowers(samples, from, to);
    return LoudnessOf(*std::max_element(powers.begin(), powers.end()));
}

double MomentaryLoudness(const Samples& samples) {
    return MomentaryLoudness(samples, 0.0, static_cast<double>(samples.size()) / sampleRate);
}

double IntegratedLoudness(const Samples& samples) {
    const double length = static_cast<double>(samples.size()) / sampleRate;
    const std::vector<double> powers = BlockPowers(samples, 0.0, length);
    const double gate = LoudnessOf(MeanAbove(powers, -70.0)) - 10.0;
    return LoudnessOf(MeanAbove(powers, std::max(gate, -70.0)));
}

double PeakOf(const Samples& samples) {
    double peak = 0.0;
    for (const double sample : samples) peak = std::max(peak, std::abs(sample));
    return peak;
}

double Decibels(double amplitude) {
    return amplitude > 0.0 ? std::max(silence, 20.0 * std::log10(amplitude)) : silence;
}
