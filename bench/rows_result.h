// What was measured for the rows of one length, and its two reports: a CSV row each, and a summary.
// Ratios below 1 mean that the function of rows is faster.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "registry/functions.h"
#include "rows.h"

namespace kfm::bench {

struct RowsResult {
    const registry::Function* function = nullptr;   // that of a single row
    Rows rows;
    double ns = 0, singleNs = 0;   // of a row, as is the peer's
    std::optional<double> peerNs;
    std::string peer;   // its name

    // Of each side the faster one of two results.
    void keepFaster(const RowsResult& again);

    std::optional<double> ratioToSingle() const;
    std::optional<double> ratioToPeer() const;
};

void writeCsv(std::ostream& out, const std::vector<RowsResult>& results);
void writeSummary(std::ostream& out, const std::vector<RowsResult>& results);

}   // namespace kfm::bench
