#include "sounds.h"

#include <algorithm>
#include <cmath>

namespace {

// A card drawn quickly through the air: paper noise whose pitch rises, and a light touch at the
// end where it lands.
Samples Flick(double seconds, std::uint64_t seed) {
    Samples samples = Silence(seconds);
    Noise noise(seed);
    Filter air;
    Filter paper;
    const double count = static_cast<double>(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double part = static_cast<double>(i) / count;
        const double frequency = 700.0 * std::pow(4.2, part);
        air.SetBandPass(frequency, 1.4);
        paper.SetBandPass(frequency * 2.1, 2.0);
        const double swell = std::pow(part / 0.62, 1.6) * std::exp(1.6 * (1.0 - part / 0.62));
        const double hiss = noise.Next();
        samples[i] = 0.36 * swell * (air.Process(hiss) + 0.5 * paper.Process(hiss));
    }
    AddBurst(samples, {seconds * 0.68, 0.90, 0.0015, 0.0065, 1500.0, 0.8}, seed + 1);
    ApplyLowPass(samples, 6000.0);
    FadeEnds(samples, 0.008, 0.030);
    return samples;
}

}  // namespace

Samples StartSound() {
    Samples samples = Silence(1.2);

    // The riffle: cards snap off the thumb, slowly at first, then faster and closer together.
    Noise chance(0x51F7);
    double time = 0.02;
    double gap = 0.042;
    std::uint64_t seed = 0x1000;
    while (time < 0.74) {
        const double arc = 0.45 + 0.55 * std::sin(3.1 * time / 0.76);
        const double level = arc * (0.85 + 0.3 * chance.Next());
        const double pitch = 2300.0 + 900.0 * (time / 0.74) + 350.0 * chance.Next();
        AddBurst(samples, {time, 0.95 * level, 0.0010, 0.0045, pitch, 0.9}, ++seed);
        AddBurst(samples, {time, 0.85 * level, 0.0015, 0.0070, 820.0, 1.6}, ++seed);
        time += gap * (1.0 + 0.22 * chance.Next());
        gap = std::max(0.013, gap * 0.957);
    }

    // The tap: the squared pack set down on the wooden edge of the table.
    AddKnock(samples, 0.93, 0.50, 0.0012,
             {{172.0, 1.0, 0.034}, {398.0, 0.55, 0.022}, {845.0, 0.28, 0.011}});
    AddBurst(samples, {0.93, 0.60, 0.0012, 0.0080, 1300.0, 0.8}, 0x2001);
    AddBurst(samples, {0.936, 0.25, 0.0020, 0.0120, 3100.0, 0.9}, 0x2002);

    ApplyHighPass(samples, 70.0);
    ApplyLowPass(samples, 8500.0);
    RoundPeaks(samples, 1.6);
    FadeEnds(samples, 0.005, 0.100);
    return samples;
}

Samples CardDownSound() {
    Samples samples = Silence(0.030);
    // Cardboard on felt: a dull pat with little above two kilohertz.
    AddBurst(samples, {0.0, 0.80, 0.0016, 0.0052, 760.0, 0.7}, 0x3001);
    AddBurst(samples, {0.0, 0.25, 0.0012, 0.0028, 2100.0, 0.9}, 0x3002);
    AddKnock(samples, 0.0, 0.40, 0.0018, {{235.0, 1.0, 0.0080}, {520.0, 0.5, 0.0050}});
    ApplyLowPass(samples, 3200.0);
    RoundPeaks(samples, 2.2);
    FadeEnds(samples, 0.0012, 0.010);
    return samples;
}

Samples CardUpSound() {
    Samples samples = Silence(0.030);
    // Paper leaves paper: a light brush that opens, with hardly any body.
    AddBurst(samples, {0.0, 0.70, 0.0060, 0.0060, 2500.0, 0.8}, 0x4001);
    AddBurst(samples, {0.004, 0.40, 0.0040, 0.0045, 4300.0, 1.0}, 0x4002);
    AddBurst(samples, {0.0, 0.20, 0.0030, 0.0060, 1100.0, 1.2}, 0x4003);
    ApplyHighPass(samples, 500.0);
    ApplyLowPass(samples, 7500.0);
    RoundPeaks(samples, 1.4);
    FadeEnds(samples, 0.0015, 0.010);
    return samples;
}

Samples AutoPlaySound() { return Flick(0.150, 0x5001); }

Samples UndoSound() {
    Samples samples = Flick(0.200, 0x6001);
    std::reverse(samples.begin(), samples.end());
    FadeEnds(samples, 0.012, 0.030);
    return samples;
}

Samples WinSound() {
    Samples samples = Silence(1.2);
    // Five notes in D, each a little softer in touch than a player would strike it in earnest.
    AddPluck(samples, {0.005, 293.66, 0.80, 0.30, 0.8}, 0x7001);
    AddPluck(samples, {0.135, 369.99, 0.72, 0.26, 0.8}, 0x7002);
    AddPluck(samples, {0.265, 329.63, 0.72, 0.26, 0.8}, 0x7003);
    AddPluck(samples, {0.395, 440.00, 0.70, 0.24, 0.75}, 0x7004);
    AddPluck(samples, {0.560, 587.33, 0.66, 0.20, 0.8}, 0x7005);
    ApplyHighPass(samples, 120.0);
    ApplyLowPass(samples, 4500.0);
    // The rest: the strings are damped by hand before the end.
    FadeEnds(samples, 0.004, 0.420);
    return samples;
}
