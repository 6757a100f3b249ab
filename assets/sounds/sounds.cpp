#include "sounds.h"

#include "loudness.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double peakLimit = -9.0;       // decibels of full scale
constexpr double cardLoudness = -31.0;   // LKFS
constexpr double eventLoudness = -25.5;  // start and win stand out, but not far

constexpr std::array<Variant, variantCount> variants{
    {{1.0, 0.0, 0x00}, {0.965, -0.4, 0x10}, {1.03, -0.2, 0x20}, {0.985, 0.3, 0x30}}};

// A card drawn quickly through the air: a light touch where it leaves, and paper noise whose pitch
// rises while it dies away.
Samples Flick(double seconds, std::uint64_t seed, double pitch) {
    Samples samples = Silence(seconds);
    Noise noise(seed);
    Filter air;
    Filter paper;
    const double count = static_cast<double>(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double part = static_cast<double>(i) / count;
        const double frequency = pitch * 700.0 * std::pow(4.2, part);
        air.SetBandPass(frequency, 1.4);
        paper.SetBandPass(frequency * 2.1, 2.0);
        const double swell = std::pow(part / 0.22, 1.2) * std::exp(1.2 * (1.0 - part / 0.22));
        const double hiss = noise.Next();
        samples[i] = 0.30 * swell * (air.Process(hiss) + 0.5 * paper.Process(hiss));
    }
    AddKnock(samples, 0.014, 0.42, 0.0022,
             {{690.0 * pitch, 1.0, 0.0085}, {1480.0 * pitch, 0.45, 0.0050}});
    AddBurst(samples, {0.014, 0.60, 0.0015, 0.0065, 1500.0 * pitch, 0.8}, seed + 1);
    ApplyLowPass(samples, 6000.0);
    RoundPeaks(samples, 1.8);
    FadeEnds(samples, 0.006, 0.030);
    return samples;
}

Samples StartSound(const Variant& variant) {
    Samples samples = Silence(1.2);

    // The riffle: cards snap off the thumb, slowly at first, then faster and closer together.
    Noise chance(0x51F7 + variant.seed);
    double time = 0.02;
    double gap = 0.042;
    std::uint64_t seed = 0x1000 + variant.seed;
    while (time < 0.74) {
        const double arc = 0.45 + 0.55 * std::sin(3.1 * time / 0.76);
        const double level = arc * (0.85 + 0.3 * chance.Next());
        const double pitch =
            variant.pitch * (2300.0 + 900.0 * (time / 0.74)) + 350.0 * chance.Next();
        AddBurst(samples, {time, 0.95 * level, 0.0010, 0.0045, pitch, 0.9}, ++seed);
        AddBurst(samples, {time, 0.85 * level, 0.0015, 0.0070, 820.0, 1.6}, ++seed);
        time += gap * (1.0 + 0.22 * chance.Next());
        gap = std::max(0.013, gap * 0.957);
    }

    // The tap: the squared pack set down on the wooden edge of the table.
    AddKnock(samples, 0.93, 0.50, 0.0012,
             {{172.0, 1.0, 0.034}, {398.0, 0.55, 0.022}, {845.0, 0.28, 0.011}});
    AddBurst(samples, {0.93, 0.60, 0.0012, 0.0080, 1300.0, 0.8}, 0x2001 + variant.seed);
    AddBurst(samples, {0.936, 0.25, 0.0020, 0.0120, 3100.0, 0.9}, 0x2002 + variant.seed);

    ApplyHighPass(samples, 70.0);
    ApplyLowPass(samples, 8500.0);
    RoundPeaks(samples, 1.6);
    FadeEnds(samples, 0.005, 0.100);
    return samples;
}

Samples CardDownSound(const Variant& variant) {
    Samples samples = Silence(0.030);
    // Cardboard on felt: a dull pat whose body a small speaker can play, with little above two
    // kilohertz.
    AddBurst(samples, {0.0, 0.45, 0.0016, 0.0052, 780.0 * variant.pitch, 1.1},
             0x3001 + variant.seed);
    AddBurst(samples, {0.0, 0.22, 0.0012, 0.0028, 2100.0 * variant.pitch, 0.9},
             0x3002 + variant.seed);
    AddKnock(samples, 0.0, 0.55, 0.0018,
             {{245.0 * variant.pitch, 0.35, 0.0070},
              {655.0 * variant.pitch, 0.9, 0.0065},
              {835.0 * variant.pitch, 0.6, 0.0055}});
    ApplyHighPass(samples, 140.0);
    ApplyLowPass(samples, 3200.0);
    RoundPeaks(samples, 1.6);
    FadeEnds(samples, 0.0012, 0.010);
    return samples;
}

Samples CardUpSound(const Variant& variant) {
    Samples samples = Silence(0.030);
    // Paper leaves paper: a light brush that opens, with hardly any body.
    AddBurst(samples, {0.0, 0.70, 0.0060, 0.0060, 2500.0 * variant.pitch, 0.8},
             0x4001 + variant.seed);
    AddBurst(samples, {0.004, 0.40, 0.0040, 0.0045, 4300.0 * variant.pitch, 1.0},
             0x4002 + variant.seed);
    AddBurst(samples, {0.0, 0.20, 0.0030, 0.0060, 1100.0 * variant.pitch, 1.2},
             0x4003 + variant.seed);
    ApplyHighPass(samples, 500.0);
    ApplyLowPass(samples, 7500.0);
    RoundPeaks(samples, 2.0);
    FadeEnds(samples, 0.0015, 0.010);
    return samples;
}

Samples AutoPlaySound(const Variant& variant) {
    return Flick(0.150, 0x5001 + variant.seed, variant.pitch);
}

Samples UndoSound(const Variant& variant) {
    Samples samples = Flick(0.200, 0x6001 + variant.seed, 0.92 * variant.pitch);
    std::reverse(samples.begin(), samples.end());
    FadeEnds(samples, 0.012, 0.006);
    return samples;
}

Samples WinSound(const Variant& variant) {
    Samples samples = Silence(1.2);
    for (const Note& note : winNotes) {
        AddPluck(samples, {note.start, note.frequency * variant.pitch, 0.3});
    }
    // The rest: the strings are damped by hand before the end.
    FadeEnds(samples, 0.004, 0.420);
    return samples;
}

constexpr SoundKind kinds[] = {
    {"start", StartSound, eventLoudness},  {"carddown", CardDownSound, cardLoudness},
    {"cardup", CardUpSound, cardLoudness}, {"autoplay", AutoPlaySound, cardLoudness},
    {"undo", UndoSound, cardLoudness},     {"win", WinSound, eventLoudness},
};

}  // namespace

std::span<const SoundKind> SoundKinds() { return kinds; }

Samples MakeSound(const SoundKind& kind, int variant) {
    const Variant& as = variants.at(static_cast<std::size_t>(variant - 1));
    Samples samples = kind.make(as);
    const double wanted = kind.loudness + as.level - MomentaryLoudness(samples);
    const double highest = peakLimit - Decibels(PeakOf(samples));
    const double scale = std::pow(10.0, std::min(wanted, highest) / 20.0);
    for (double& sample : samples) sample *= scale;
    return samples;
}
