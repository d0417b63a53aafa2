// What was measured for one function, and its two reports: a CSV row each, and a summary. Ratios
// below 1 mean that the library measured is faster.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "op_counts.h"
#include "registry/functions.h"

namespace kfm::bench {

struct Result {
    const registry::Function* function = nullptr;
    double ns = 0, medianNs = 0;
    std::optional<double> peerNs;
    std::string peer;   // its name
    std::optional<OpCounts> counts;
    double cycleNs = 0;
    int vectorBits = 128;

    // Of the other file of the library, out of place; and of both in place, every call on the
    // result of the last one.
    std::optional<double> otherNs, inPlaceNs, otherInPlaceNs;

    // Of each side the faster one of two results.
    void keepFaster(const Result& again);

    std::optional<double> ratio() const;
    std::optional<double> otherRatio() const;
    std::optional<double> inPlaceRatio() const;

    // What the additions alone take on two adders, if all vectors were of full width.
    std::optional<double> boundNs() const;
    std::optional<double> boundRatio() const;
};

void writeCsv(std::ostream& out, const std::vector<Result>& results);
void writeSummary(std::ostream& out, const std::vector<Result>& results);

}   // namespace kfm::bench
