// Bands of frequency that stand for the bins in them.
#pragma once

#include <algorithm>
#include <span>
#include <vector>

#include "frequency_grid.h"

namespace kfm::tool {

class Bands {
public:
    // Between ascending edges; a band too narrow for a bin has the next one above its lower edge.
    Bands(const FrequencyGrid& grid, std::span<const double> edges) {
        for (std::size_t band = 0; band + 1 < edges.size(); ++band) {
            const std::size_t first = std::min(grid.bins - 1, grid.firstBin(edges[band]));
            const std::size_t end = std::min(grid.bins, grid.firstBin(edges[band + 1]));
            ranges_.push_back({first, std::max(first + 1, end) - first});
        }
    }

    std::size_t count() const { return ranges_.size(); }

    // Not the mean: a tone has its level, however wide the band is.
    template <class Real>
    Real strongest(std::span<const Real> powers, std::size_t band) const {
        return *std::ranges::max_element(powers.subspan(ranges_[band].first, ranges_[band].count));
    }

private:
    struct Range {
        std::size_t first, count;
    };
    std::vector<Range> ranges_;
};

// `count` bands of equal width, and of equal ratio.
inline std::vector<double> equalBands(double lowest, double highest, std::size_t count) {
    std::vector<double> edges(count + 1);
    for (std::size_t i = 0; i <= count; ++i)
        edges[i] = lowest + (highest - lowest) * static_cast<double>(i) / count;
    return edges;
}

inline std::vector<double> proportionalBands(double lowest, double ratio, std::size_t count) {
    std::vector<double> edges(count + 1);
    for (std::size_t i = 0; i <= count; ++i) edges[i] = lowest * std::pow(ratio, i);
    return edges;
}

}   // namespace kfm::tool
