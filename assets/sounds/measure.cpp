// Measures the sound files of the game: varnello-measure-sounds FOLDER
// Prints a table and ends with 1 when a sound isn't as it should be.
#include "loudness.h"
#include "sounds.h"
#include "wavefile.h"

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <numbers>
#include <set>
#include <string>

namespace {

constexpr double bandEdges[] = {0, 300, 600, 900, 2000, 5000, 22050};
constexpr std::size_t bandCount = std::size(bandEdges) - 1;

bool faultless = true;

// The power of one frequency in a stretch of a sound under a smooth window.
double PowerAt(const Samples& samples, std::size_t first, std::size_t count, double frequency) {
    double real = 0.0;
    double imaginary = 0.0;
    count = std::min(count, samples.size() - first);
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 2.0 * std::numbers::pi * static_cast<double>(i);
        const double window = 0.5 - 0.5 * std::cos(angle / static_cast<double>(count));
        real += window * samples[first + i] * std::cos(angle * frequency / sampleRate);
        imaginary += window * samples[first + i] * std::sin(angle * frequency / sampleRate);
    }
    return real * real + imaginary * imaginary;
}

struct Spectrum {
    double shares[bandCount] = {};  // of the energy, in percent
    double centre = 0.0;            // hertz
};

Spectrum SpectrumOf(const Samples& samples) {
    constexpr double step = 20.0;
    Spectrum spectrum;
    double all = 0.0;
    for (std::size_t band = 0; band < bandCount; ++band) {
        for (double at = bandEdges[band] + step / 2; at < bandEdges[band + 1]; at += step) {
            double real = 0.0;
            double imaginary = 0.0;
            for (std::size_t i = 0; i < samples.size(); ++i) {
                const double angle =
                    2.0 * std::numbers::pi * at * static_cast<double>(i) / sampleRate;
                real += samples[i] * std::cos(angle);
                imaginary += samples[i] * std::sin(angle);
            }
            const double power = real * real + imaginary * imaginary;
            spectrum.shares[band] += power;
            spectrum.centre += power * at;
            all += power;
        }
    }
    for (double& share : spectrum.shares) share *= 100.0 / all;
    spectrum.centre /= all;
    return spectrum;
}

// Milliseconds from the start to the loudest two.
double AttackOf(const Samples& samples) {
    const std::size_t width = SampleCount(0.002);
    double best = -1.0;
    std::size_t place = 0;
    for (std::size_t first = 0; first + width <= samples.size(); first += width / 4) {
        double power = 0.0;
        for (std::size_t i = first; i < first + width; ++i) power += samples[i] * samples[i];
        if (power <= best) continue;
        best = power;
        place = first + width / 2;
    }
    return 1000.0 * static_cast<double>(place) / sampleRate;
}

[[gnu::format(printf, 2, 3)]] void Require(bool right, const char* format, ...) {
    if (right) return;
    faultless = false;
    std::va_list arguments;
    va_start(arguments, format);
    std::fputs("wrong: ", stdout);
    std::vprintf(format, arguments);
    std::putchar('\n');
    va_end(arguments);
}

struct Range {
    double lowest = 1e9;
    double highest = -1e9;
    void Take(double value) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
};

struct Ranges {
    Range cards;
    Range events;
};

void Measure(const SoundKind& kind, const std::filesystem::path& file, Ranges& all, Range& own) {
    const Samples samples = ReadWave(file);
    const std::string name = file.stem().string();
    if (samples.empty()) return Require(false, "%s can't be read", file.c_str());
    const bool event = kind.name == std::string("start") || kind.name == std::string("win");
    const double loudness = MomentaryLoudness(samples);
    (event ? all.events : all.cards).Take(loudness);
    own.Take(loudness);
    const double peak = Decibels(PeakOf(samples));
    const double ends = Decibels(std::max(std::abs(samples.front()), std::abs(samples.back())));
    const double attack = AttackOf(samples);
    const Spectrum spectrum = SpectrumOf(samples);
    std::printf("%-11s %5zu %7.1f %6.1f %6.0f %7.1f %6.0f ", name.c_str(),
                samples.size() * 1000 / static_cast<std::size_t>(sampleRate), loudness, peak, ends,
                attack, spectrum.centre);
    for (const double share : spectrum.shares) std::printf(" %5.1f", share);
    std::putchar('\n');
    Require(peak <= -8.99, "%s peaks above -9 dB", name.c_str());
    Require(ends <= -60, "%s clicks at an end", name.c_str());
    if (kind.name == std::string("autoplay")) {
        Require(attack < 40, "the tap of %s comes late", name.c_str());
    }
    if (kind.name == std::string("carddown")) {
        Require(spectrum.shares[0] < 25, "%s is lost on small speakers", name.c_str());
        Require(spectrum.shares[2] > 30, "%s has no body", name.c_str());
    }
}

// How even the plucks are: each fundamental against the strongest of its partials, and the strength
// of the fundamentals.
void MeasureWin(const std::filesystem::path& file) {
    const Samples samples = ReadWave(file);
    std::printf("\nNote of the win, Hz  Fundamental over the strongest partial, dB  Level, dB\n");
    Range levels;
    double first = 0.0;
    for (const Note& note : winNotes) {
        const std::size_t start = SampleCount(note.start);
        const std::size_t count = SampleCount(0.125);
        if (start + count > samples.size()) return Require(false, "the win is too short");
        double strongest = 0.0;
        for (int partial = 2; partial <= 8; ++partial) {
            for (double wide = 0.99; wide <= 1.01; wide += 0.002) {
                strongest = std::max(
                    strongest, PowerAt(samples, start, count, note.frequency * partial * wide));
            }
        }
        const double fundamental = PowerAt(samples, start, count, note.frequency);
        const double level = 10.0 * std::log10(fundamental);
        if (first == 0.0) first = level;
        levels.Take(level);
        const double over = 10.0 * std::log10(fundamental / strongest);
        std::printf("%19.2f %43.1f %10.1f\n", note.frequency, over, level - first);
        Require(over > 3, "a partial drowns the note of %.0f Hz", note.frequency);
    }
    Require(levels.highest - levels.lowest < 2, "the notes of the win aren't even");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: varnello-measure-sounds FOLDER\n");
        return 2;
    }
    std::printf(
        "%-11s %5s %7s %6s %6s %7s %6s   Energy by bands, %%: Hz\n%-11s %5s %7s %6s %6s %7s %6s ",
        "Sound", "ms", "LKFS", "Peak", "Ends", "Attack", "Centre", "", "", "", "dB", "dB", "ms",
        "Hz");
    for (std::size_t i = 1; i <= bandCount; ++i) std::printf(" -%4.0f", bandEdges[i]);
    std::putchar('\n');
    Ranges all;
    for (const SoundKind& kind : SoundKinds()) {
        std::set<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
            if (entry.path().filename().string().starts_with(std::string(kind.name) + "-")) {
                files.insert(entry.path());
            }
        }
        Require(!files.empty(), "there is no file of %s", kind.name);
        Range own;
        for (const auto& file : files) Measure(kind, file, all, own);
        Require(own.highest - own.lowest <= 1, "the variants of %s differ by more than 1 dB",
                kind.name);
    }
    Require(all.cards.highest - all.cards.lowest <= 2, "card sounds differ by more than 2 dB");
    Require(all.events.highest - all.cards.lowest <= 6, "start or win is too loud");
    MeasureWin(std::filesystem::path(argv[1]) / "win-1.wav");
    return faultless ? 0 : 1;
}
