// Power of a sound per frequency band and slice of time. The sound is mixed to one channel and,
// above 16 kHz, brought down to a rate near 8 kHz behind a low-pass filter: a transform of 64
// points then resolves bands of about 125 Hz, where speech and most pitches live.
#pragma once

#include <vector>

namespace kfm::tool {

struct Sound {
    int rate;
    int channels;
    std::vector<double> samples;
};

// Powers are relative to a sine of full scale.
struct Slice {
    double start;                // seconds
    double level;                // of all bands
    std::vector<double> bands;   // band k is centred on k * bandWidth
};

struct BandPower {
    double rate;        // at which the sound was analysed
    double bandWidth;   // Hz
    std::vector<Slice> slices;
    std::vector<double> average;   // bands of the whole sound
};

constexpr int bandTransformLength = 64;

BandPower bandPower(const Sound& sound, double sliceSeconds);

// The strongest bands that exceed their neighbours, strongest first; constant offset and silence
// do not count.
std::vector<std::size_t> peaks(const std::vector<double>& bands, std::size_t most);

}   // namespace kfm::tool
