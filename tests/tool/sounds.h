// Sounds whose spectra are known.
#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace kfm::test {

struct Tone {
    double frequency;
    double decibels;   // 0 is full scale
};

inline double amplitude(double decibels) { return std::pow(10, decibels / 20); }

// Every tone with a phase of its own.
inline std::vector<double> tones(double rate, std::size_t count, const std::vector<Tone>& parts) {
    std::vector<double> samples(count);
    double phase = 0.3;
    for (const Tone& part : parts) {
        // Reduced to one turn, so that the last sample is as exact as the first.
        const double turns = part.frequency / rate;
        for (std::size_t n = 0; n < count; ++n)
            samples[n] += amplitude(part.decibels) *
                          std::sin(2 * std::numbers::pi * std::fmod(turns * n, 1) + phase);
        phase += 1;
    }
    return samples;
}

// Uniform in [-1, 1).
inline std::vector<double> whiteNoise(std::size_t count) {
    std::vector<double> samples(count);
    std::uint64_t state = 1;
    for (double& sample : samples) {
        state = state * 6364136223846793005u + 1442695040888963407u;   // Knuth's MMIX constants
        sample = static_cast<double>(static_cast<std::int64_t>(state)) * 0x1p-63;
    }
    return samples;
}

inline void append(std::vector<double>& samples, const std::vector<double>& more) {
    samples.insert(samples.end(), more.begin(), more.end());
}

}   // namespace kfm::test
