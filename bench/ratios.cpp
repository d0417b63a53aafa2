#include "ratios.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace kfm::bench {

void Ratios::printPeer(std::ostream& out, const std::string& ours, const std::string& peer) const {
    out << "  " << ours << '/' << peer << ": ";
    printMean(out);
    out << "\n  slower than " << peer << ':';
    printBeyond(out, 1);
    out << '\n';
}

void Ratios::printLevel(std::ostream& out, const std::string& sides, double limit) const {
    out << "  " << sides << ": ";
    printMean(out);
    out << "; beyond " << limit << ':';
    printBeyond(out, limit);
    out << '\n';
}

void Ratios::printMean(std::ostream& out) const {
    double logarithms = 0;
    for (const Row& row : rows) logarithms += std::log(row.ratio);
    out << "geometric mean " << std::exp(logarithms / rows.size()) << " of " << rows.size()
        << " lengths, ";
    printWorst(out);
}

void Ratios::printWorst(std::ostream& out) const {
    const Row& worst = *std::ranges::max_element(rows, {}, &Row::ratio);
    out << "worst " << worst.ratio << " at " << worst.length;
}

void Ratios::printBeyond(std::ostream& out, double limit) const {
    bool none = true;
    for (const Row& row : rows) {
        if (row.ratio <= limit) continue;
        out << ' ' << row.length << " (" << row.ratio << ')';
        none = false;
    }
    if (none) out << " none";
}

int Ratios::beyond(double limit) const {
    return static_cast<int>(
        std::ranges::count_if(rows, [&](const Row& row) { return row.ratio > limit; }));
}

}   // namespace kfm::bench
