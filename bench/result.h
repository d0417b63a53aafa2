// What was measured for one function, and its two reports: a CSV row each, and a summary.
#pragma once

#include <iosfwd>
#include <optional>
#include <vector>

#include "op_counts.h"
#include "registry/functions.h"

namespace kfm::bench {

struct Result {
    const registry::Function* function;
    double ns, medianNs;
    std::optional<double> peerNs;
    std::optional<OpCounts> counts;
    double cycleNs;

    // Time against FFTW's; below 1 this library is faster.
    std::optional<double> ratio() const;

    // What the additions alone take on two adders.
    std::optional<double> boundNs() const;
    std::optional<double> boundRatio() const;
};

void writeCsv(std::ostream& out, const std::vector<Result>& results);
void writeSummary(std::ostream& out, const std::vector<Result>& results);

}   // namespace kfm::bench
