// Building blocks of the sounds: noise, filters, struck wood and a plucked string.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

constexpr double sampleRate = 44100.0;

using Samples = std::vector<double>;

// The number of samples in a stretch of time.
std::size_t SampleCount(double seconds);

Samples Silence(double seconds);

// White noise between -1 and 1 from a fixed seed, so that every build makes the same bytes.
class Noise {
public:
    explicit Noise(std::uint64_t seed) : state_(seed) {}

    double Next();

private:
    std::uint64_t state_;
};

// A second-order filter. Its frequency may be moved between samples without a click.
class Filter {
public:
    void SetBandPass(double frequency, double quality);
    void SetLowPass(double frequency, double quality);
    void SetHighPass(double frequency, double quality);
    // Lifts what lies above the frequency by so many decibels.
    void SetHighShelf(double frequency, double quality, double gain);
    double Process(double input);

private:
    // Terms that the three kinds of filter share.
    struct Shape {
        double cosine;
        double alpha;
    };
    Shape Prepare(double frequency, double quality);

    double b0_ = 1.0, b1_ = 0.0, b2_ = 0.0, a1_ = 0.0, a2_ = 0.0;
    double state1_ = 0.0, state2_ = 0.0;
};

// A rise of half a cosine followed by an exponential fall, 0 before the start.
double Strike(double time, double attack, double decay);

// One way in which a body rings after a blow.
struct Mode {
    double frequency;
    double level;
    double decay;
};

// A short burst of noise as paper or cardboard makes it.
struct Burst {
    double start;
    double level;
    double attack;
    double decay;
    double frequency;
    double quality;
};

void AddBurst(Samples& target, const Burst& burst, std::uint64_t seed);
void AddKnock(Samples& target, double start, double level, double attack,
              std::initializer_list<Mode> modes);

// A string plucked softly with the finger. All strings have the same partials, so that one isn't
// heard before another.
struct Pluck {
    double start;
    double frequency;
    double ring;  // seconds until the fundamental has fallen to a third
};

void AddPluck(Samples& target, const Pluck& pluck);

void ApplyHighPass(Samples& samples, double frequency);
void ApplyLowPass(Samples& samples, double frequency);

// Presses the highest peaks down, so that a short knock sounds as loud as a longer noise.
void RoundPeaks(Samples& samples, double drive);

// Let the sound grow from nothing and fade to nothing at its two ends.
void FadeEnds(Samples& samples, double fadeIn, double fadeOut);
