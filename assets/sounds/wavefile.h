// Writing and reading of sound files.
#pragma once

#include "synth.h"

#include <filesystem>

// Writes the sound as 16 bit mono; 1 is full scale. Returns false when the file cannot be written.
bool WriteWave(const std::filesystem::path& path, const Samples& samples);

// The samples of a file that was written by the above; nothing when it can't be read.
Samples ReadWave(const std::filesystem::path& path);
