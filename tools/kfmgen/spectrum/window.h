// The four-term Blackman-Harris window: what lies four units (FrequencyGrid::unit) or more beside
// a tone is 92 dB below it.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace kfm::tool::window {

inline constexpr const char* name = "Blackman-Harris";
inline constexpr std::array terms = {0.35875, -0.48829, 0.14128, -0.01168};
inline constexpr double sidelobes = -92;   // dB

// At the middles of `length` equal parts, so that the window of one sample is 1.
inline std::vector<double> weights(std::size_t length) {
    std::vector<double> weights(length);
    for (std::size_t n = 0; n < length; ++n)
        for (std::size_t j = 0; j < terms.size(); ++j)
            weights[n] += terms[j] * std::cos(2 * std::numbers::pi * j * (n + 0.5) / length);
    return weights;
}

// Sums over the power of the window's terms, each at its distance from the middle.
constexpr double moment(int order) {
    double sum = order == 0 ? terms[0] * terms[0] : 0;
    for (std::size_t j = 1; j < terms.size(); ++j)
        sum += terms[j] * terms[j] / 2 * (order == 0 ? 1.0 : static_cast<double>(j * j));
    return sum;
}

// In units: the width of a flat band with the power of the lobe, and the mean square distance of
// the lobe's power from its middle.
inline constexpr double noiseBandwidth = moment(0) / (terms[0] * terms[0]);
inline constexpr double spread = moment(2) / moment(0);

}   // namespace kfm::tool::window
