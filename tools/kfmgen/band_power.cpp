#include "band_power.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <numeric>

#include "fixed_transform.h"
#include "kfmgen.h"

namespace kfm::tool {
namespace {

constexpr double pi = std::numbers::pi;

using Samples = std::vector<double>;

// A sinc under a Hann window, of unit gain, that passes 0.43 of the new rate and stops half of it.
std::vector<double> lowPass(int factor) {
    const int reach = 12 * factor;
    std::vector<double> taps;
    for (int i = -reach; i <= reach; ++i) {
        const double x = 2 * 0.43 * i / factor;
        const double sinc = i == 0 ? 1 : std::sin(pi * x) / (pi * x);
        taps.push_back(sinc * (1 + std::cos(pi * i / (reach + 1))));
    }
    const double gain = std::accumulate(taps.begin(), taps.end(), 0.0);
    for (double& tap : taps) tap /= gain;
    return taps;
}

Samples decimated(const Samples& samples, int factor) {
    if (factor == 1) return samples;
    const std::vector<double> taps = lowPass(factor);
    const std::ptrdiff_t size = samples.size();
    const std::ptrdiff_t reach = taps.size() / 2;
    Samples result;
    for (std::ptrdiff_t centre = 0; centre < size; centre += factor) {
        const std::ptrdiff_t first = std::max<std::ptrdiff_t>(0, centre - reach);
        const std::ptrdiff_t last = std::min(size - 1, centre + reach);
        double sum = 0;
        for (std::ptrdiff_t i = first; i <= last; ++i) sum += samples[i] * taps[i - centre + reach];
        result.push_back(sum);
    }
    return result;
}

// Adds the bands of half-overlapping frames under a Hann window; returns how many frames.
class BandSum {
public:
    BandSum()
        : transform_(fixedTransform("DFTFwd_RToCCS", bandTransformLength, true, kfmScaleNone)) {
        for (int i = 0; i < bandTransformLength; ++i)
            window_.push_back((1 - std::cos(2 * pi * i / bandTransformLength)) / 2);
    }

    // The sum of the window is half its length, so an amplitude of 1 gives a quarter of the length
    // in its bin.
    std::vector<double> mean(std::span<const double> signal) const {
        std::vector<double> bands(bandTransformLength / 2 + 1);
        std::size_t count = 0;
        bool last = signal.empty();
        for (std::size_t start = 0; !last; start += bandTransformLength / 2, ++count) {
            Samples windowed(bandTransformLength), spectrum(bandTransformLength + 2);
            const std::size_t there =
                std::min<std::size_t>(bandTransformLength, signal.size() - start);
            last = start + bandTransformLength >= signal.size();
            std::copy_n(signal.begin() + start, there, windowed.begin());
            std::ranges::transform(windowed, window_, windowed.begin(), std::multiplies<>());
            (*transform_)(windowed, spectrum);
            for (std::size_t k = 0; k < bands.size(); ++k)
                bands[k] += (spectrum[2 * k] * spectrum[2 * k] +
                             spectrum[2 * k + 1] * spectrum[2 * k + 1]) *
                            (4.0 / bandTransformLength) * (4.0 / bandTransformLength);
        }
        for (double& band : bands) band /= count;
        return bands;
    }

private:
    std::unique_ptr<FrameTransform> transform_;
    std::vector<double> window_;
};

// Twice the mean square: 1 for a sine of full scale.
double level(std::span<const double> signal) {
    double sum = 0;
    for (const double sample : signal) sum += sample * sample;
    return 2 * sum / signal.size();
}

}   // namespace

BandPower bandPower(const Sound& sound, double sliceSeconds) {
    const int factor = std::max(1, sound.rate / 8000);
    const Samples samples = decimated(sound.samples, factor);
    const double rate = static_cast<double>(sound.rate) / factor;
    const std::size_t sliceLength =
        std::max<std::size_t>(bandTransformLength, std::lround(sliceSeconds * rate));

    const BandSum bandSum;
    BandPower result{rate, rate / bandTransformLength, {}, bandSum.mean(samples)};
    for (std::size_t start = 0; start < samples.size(); start += sliceLength) {
        const std::size_t length = std::min(sliceLength, samples.size() - start);
        const std::span<const double> slice(samples.data() + start, length);
        result.slices.push_back({start / rate, level(slice), bandSum.mean(slice)});
    }
    return result;
}

std::vector<std::size_t> peaks(const std::vector<double>& bands, std::size_t most) {
    constexpr double silence = 1e-9;
    std::vector<std::size_t> found;
    for (std::size_t k = 1; k < bands.size(); ++k) {
        const double next = k + 1 < bands.size() ? bands[k + 1] : 0;
        if (bands[k] > silence && bands[k] > bands[k - 1] && bands[k] >= next) found.push_back(k);
    }
    std::ranges::sort(found, std::greater<>(), [&](std::size_t k) { return bands[k]; });
    found.resize(std::min(found.size(), most));
    return found;
}

}   // namespace kfm::tool
