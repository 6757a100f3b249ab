// The sounds of the table.
#pragma once

#include "synth.h"

#include <array>
#include <span>

// One way to make a sound, so that it isn't heard the same each time.
struct Variant {
    double pitch;        // a factor
    double level;        // decibels
    std::uint64_t seed;  // of its noises
};

struct SoundKind {
    const char* name;
    Samples (*make)(const Variant& variant);
    double loudness;  // LKFS, momentary
};

// All kinds. A sound's level is set by its loudness; no peak is above -9 dB of full scale.
std::span<const SoundKind> SoundKinds();

// The variants of a kind count from 1.
inline constexpr int variantCount = 4;
Samples MakeSound(const SoundKind& kind, int variant);

// The plucked notes of the won game.
struct Note {
    double start;      // seconds
    double frequency;  // hertz
};
inline constexpr std::array<Note, 5> winNotes{
    {{0.005, 293.66}, {0.135, 369.99}, {0.265, 329.63}, {0.395, 440.00}, {0.560, 587.33}}};
