// How loud a sound is heard, as broadcasters measure it (ITU-R BS.1770).
#pragma once

#include "synth.h"

// The loudest 400 milliseconds of a sound in LKFS, and those alone that begin in a stretch of it
// (seconds). A sound that is shorter counts as followed by silence. Silence is at -120.
double MomentaryLoudness(const Samples& samples);
double MomentaryLoudness(const Samples& samples, double from, double to);

// The loudness of all of it, without its silent stretches, in LKFS.
double IntegratedLoudness(const Samples& samples);

double PeakOf(const Samples& samples);

// As decibels of full scale.
double Decibels(double amplitude);
