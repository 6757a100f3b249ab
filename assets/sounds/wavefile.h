// Writing of sound files.
#pragma once

#include "synth.h"

#include <filesystem>

// Scales the sound so that its peak is 9 dB below full scale, and writes it as 16 bit mono.
// Returns false when the file cannot be written.
bool WriteWave(const std::filesystem::path& path, const Samples& samples);
