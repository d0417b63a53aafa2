#include "rows_result.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "ratios.h"

namespace kfm::bench {
namespace {

// Where rows take as long as single functions, minima of two equal things still differ.
constexpr double singleLevel = 1.02;

void summarise(std::ostream& out, const Group<RowsResult>& group) {
    Ratios(group, &RowsResult::ratioToSingle).printLevel(out, "rows/single functions", singleLevel);
    const Ratios toPeer(group, &RowsResult::ratioToPeer);
    if (!toPeer.empty()) toPeer.printPeer(out, "rows", "FFTW");
}

}   // namespace

void RowsResult::keepFaster(const RowsResult& again) {
    if (again.peerNs < peerNs) peer = again.peer;
    ns = std::min(ns, again.ns);
    singleNs = std::min(singleNs, again.singleNs);
    peerNs = std::min(peerNs, again.peerNs);
}

std::optional<double> RowsResult::ratioToSingle() const { return ns / singleNs; }

std::optional<double> RowsResult::ratioToPeer() const {
    if (!peerNs) return std::nullopt;
    return ns / *peerNs;
}

void writeCsv(std::ostream& out, const std::vector<RowsResult>& results) {
    out << "function,layout,rows,ns_per_row,single_ns_per_row,peer_ns_per_row,ratio_to_single,"
           "ratio_to_peer,peer\n"
        << std::fixed << std::setprecision(3);
    for (const RowsResult& result : results) {
        out << result.function->name << ',' << result.rows.layout() << ',' << result.rows.count
            << ',' << result.ns << ',' << result.singleNs << ',';
        if (result.peerNs) out << *result.peerNs;
        out << ',' << *result.ratioToSingle() << ',';
        if (result.peerNs) out << *result.ratioToPeer();
        out << ',' << result.peer << '\n';
    }
}

void writeSummary(std::ostream& out, const std::vector<RowsResult>& results) {
    out << std::fixed << std::setprecision(2);
    for (const auto& [name, group] : grouped(results)) {
        const Rows& rows = group.front()->rows;
        out << name << ", " << rows.count << " rows, " << rows.layout() << '\n';
        summarise(out, group);
    }
}

}   // namespace kfm::bench
