// The pitch of speech over time, by the autocorrelation of frames of 64 samples at 2 kHz: real DFT,
// squares, inverse real DFT, all of Perm's packed numbers. The window's own autocorrelation is divided
// out (Boersma, Accurate short-term analysis of the fundamental frequency, 1993).
//
//   c++ -std=c++20 -O2 pitch.cpp $(pkg-config --cflags --libs kfmgen sndfile fftw3f) && ./a.out
//
// Otherwise one would take FFTW's plans; the times of both are printed.
#include <fftw3.h>
#include <sndfile.h>

#include <cmath>
#include <numbers>
#include <optional>

#include "common.h"
#include "kfmgen.h"

namespace {

constexpr int length = 64, hop = 10, rate = 2000;
constexpr int shortest = rate / 350, longest = rate / 90;   // periods of voices
using Frame = std::vector<float>;

std::vector<float> recording(const char* path, int& fileRate) {
    SF_INFO about{};
    SNDFILE* const file = sf_open(path, SFM_READ, &about);
    if (!file) throw std::runtime_error(std::string(path) + ": " + sf_strerror(nullptr));
    std::vector<float> all(about.frames * about.channels), first(about.frames);
    sf_readf_float(file, all.data(), about.frames);
    sf_close(file);
    for (std::size_t n = 0; n < first.size(); ++n) first[n] = all[n * about.channels];
    fileRate = about.samplerate;
    return first;
}

// At 2 kHz, through a windowed sinc that ends at 900 Hz.
std::vector<float> slower(const std::vector<float>& x, int factor) {
    const int half = 4 * factor;
    const double edge = 0.9 / factor;   // of half the rate
    std::vector<float> y;
    for (int at = half; at + half < static_cast<int>(x.size()); at += factor) {
        double sum = 0;
        for (int n = -half; n <= half; ++n) {
            const double angle = std::numbers::pi * n;
            const double sinc = n == 0 ? edge : std::sin(edge * angle) / angle;
            sum += x[at + n] * sinc * (0.5 + 0.5 * std::cos(angle / half));
        }
        y.push_back(static_cast<float>(sum));
    }
    return y;
}

// Circular. Perm: both real bins, then pairs.
Frame autocorrelation(const Frame& x) {
    Frame spectrum(length), result(length);
    kfmgDFTFwd_RToPerm_64_32f(x.data(), spectrum.data(), kfmScaleNone);
    spectrum[0] *= spectrum[0];
    spectrum[1] *= spectrum[1];
    for (int k = 2; k < length; k += 2) {
        spectrum[k] = spectrum[k] * spectrum[k] + spectrum[k + 1] * spectrum[k + 1];
        spectrum[k + 1] = 0;
    }
    kfmgDFTInv_PermToR_64_32f(spectrum.data(), result.data(), kfmScaleInvByN);
    return result;
}

Frame window() {
    Frame values(length);
    for (int n = 0; n < length; ++n)
        values[n] =
            static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * (n + 0.5) / length));
    return values;
}

// In Hz, where there is one: the highest of the peaks, between samples on a parabola.
std::optional<double> pitch(const Frame& samples, const Frame& window, const Frame& ofWindow) {
    Frame x(length);
    for (int n = 0; n < length; ++n) x[n] = samples[n] * window[n];
    const Frame r = autocorrelation(x);
    if (r[0] < 1e-3) return {};
    const auto value = [&](int lag) { return r[lag] / r[0] * ofWindow[0] / ofWindow[lag]; };
    int best = 0;
    for (int lag = shortest; lag <= longest; ++lag)
        if (value(lag) > value(lag - 1) && value(lag) >= value(lag + 1) &&
            (best == 0 || value(lag) > value(best) + 0.05f))
            best = lag;
    if (best == 0 || value(best) < 0.6f) return {};
    const double before = value(best - 1), at = value(best), after = value(best + 1);
    return rate / (best + 0.5 * (before - after) / (before - 2 * at + after));
}

void printTimes(Frame x) {
    Frame packed(length), back(length);
    std::vector<float> spectrum(length + 2);
    const auto bins = reinterpret_cast<fftwf_complex*>(spectrum.data());
    fftwf_plan there = fftwf_plan_dft_r2c_1d(length, x.data(), bins, FFTW_PATIENT);
    fftwf_plan here = fftwf_plan_dft_c2r_1d(length, bins, back.data(), FFTW_PATIENT);
    const auto ns =
        example::least({[&] {
                            kfmgDFTFwd_RToPerm_64_32f(x.data(), packed.data(), kfmScaleNone);
                            kfmgDFTInv_PermToR_64_32f(packed.data(), back.data(), kfmScaleInvByN);
                        },
                        [&] {
                            fftwf_execute(there);
                            fftwf_execute(here);
                        }});
    std::printf("there and back: %.0f ns; FFTW %.0f ns\n", ns[0], ns[1]);
    fftwf_destroy_plan(there);
    fftwf_destroy_plan(here);
}

}   // namespace

int main(int argc, char** argv) try {
    int fileRate = 0;
    const auto sound =
        recording(argc > 1 ? argv[1] : "/usr/share/sounds/alsa/Front_Center.wav", fileRate);
    const std::vector<float> x = slower(sound, fileRate / rate);
    const Frame shape = window(), ofShape = autocorrelation(shape);
    std::vector<std::vector<double>> track;
    std::vector<double> pitches;
    for (std::size_t at = 0; at + length <= x.size(); at += hop)
        if (const auto found = pitch(Frame(&x[at], &x[at] + length), shape, ofShape)) {
            track.push_back({(at + length / 2.0) / rate, *found});
            pitches.push_back(*found);
        }
    if (pitches.empty()) throw std::runtime_error("no voice in it");
    std::ranges::sort(pitches);
    std::printf("voiced %zu of %zu frames, pitch %.0f Hz in the median, %.0f to %.0f for 8 of 10\n",
                pitches.size(), (x.size() - length) / hop + 1, pitches[pitches.size() / 2],
                pitches[pitches.size() / 10], pitches[pitches.size() * 9 / 10]);
    example::draw("pitch.png", example::data("track", track) +
                                   "set title 'Pitch of speech'\nset xlabel 'time in s'\n"
                                   "set ylabel 'pitch in Hz'\nset yrange [80:360]\n"
                                   "plot $track using 1:2 with points pt 7 ps 0.6 notitle\n");
    printTimes(shape);
} catch (const std::exception& error) {
    std::fprintf(stderr, "pitch: %s\n", error.what());
    return 1;
}
