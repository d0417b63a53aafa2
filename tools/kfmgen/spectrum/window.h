// The windows that a frame is seen through: sums of a few cosines.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace kfm::tool::window {

struct Shape {
    const char* name;
    std::array<double, 4> terms;
    bool root = false;   // the square root of the sum
};

// Of four terms: what lies four units (FrequencyGrid::unit) or more beside a tone is 92 dB below
// it.
inline constexpr Shape blackmanHarris = {"Blackman-Harris", {0.35875, -0.48829, 0.14128, -0.01168}};
inline constexpr double sidelobes = -92;   // dB

inline constexpr Shape hann = {"Hann", {0.5, -0.5}};
inline constexpr Shape rootHann = {"square root of the Hann", {0.5, -0.5}, true};
inline constexpr Shape none = {"no", {1}};

// At the middles of `length` equal parts, so that the window of one sample is no zero.
inline std::vector<double> weights(const Shape& shape, std::size_t length) {
    std::vector<double> weights(length);
    for (std::size_t n = 0; n < length; ++n) {
        for (std::size_t j = 0; j < shape.terms.size(); ++j)
            weights[n] += shape.terms[j] * std::cos(2 * std::numbers::pi * j * (n + 0.5) / length);
        if (shape.root) weights[n] = std::sqrt(weights[n]);
    }
    return weights;
}

// Sums over the power of the window's terms, each at its distance from the middle.
constexpr double moment(const Shape& shape, int order) {
    double sum = order == 0 ? shape.terms[0] * shape.terms[0] : 0;
    for (std::size_t j = 1; j < shape.terms.size(); ++j)
        sum +=
            shape.terms[j] * shape.terms[j] / 2 * (order == 0 ? 1.0 : static_cast<double>(j * j));
    return sum;
}

// Of the Blackman-Harris window in units: the width of a flat band with the power of the lobe, and
// the mean square distance of the lobe's power from its middle.
inline constexpr double noiseBandwidth =
    moment(blackmanHarris, 0) / (blackmanHarris.terms[0] * blackmanHarris.terms[0]);
inline constexpr double spread = moment(blackmanHarris, 2) / moment(blackmanHarris, 0);

}   // namespace kfm::tool::window
