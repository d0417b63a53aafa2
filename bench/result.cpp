// Formats the results.
#include "result.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <map>
#include <ostream>

#include "timer.h"

namespace kfm::bench {
namespace {

std::optional<double> quotient(const std::optional<double>& a, const std::optional<double>& b) {
    if (!a || !b) return std::nullopt;
    return *a / *b;
}

template <class Value>
void cell(std::ostream& out, const std::optional<Value>& value) {
    out << ',';
    if (value) out << *value;
}

using Group = std::vector<const Result*>;
using Ratio = std::optional<double> (Result::*)() const;

// One ratio over the results that have it.
class Ratios {
public:
    Ratios(const Group& group, Ratio ratio) {
        for (const Result* result : group)
            if (const auto value = (result->*ratio)())
                rows.push_back({*value, result->function->length});
    }
    bool empty() const { return rows.empty(); }

    void printMean(std::ostream& out) const {
        double logarithms = 0;
        for (const Row& row : rows) logarithms += std::log(row.ratio);
        out << "geometric mean " << std::exp(logarithms / rows.size()) << " of " << rows.size()
            << " lengths, ";
        printWorst(out);
    }
    void printWorst(std::ostream& out) const {
        const Row& worst = *std::ranges::max_element(rows, {}, &Row::ratio);
        out << "worst " << worst.ratio << " at " << worst.length;
    }
    void printBeyond(std::ostream& out, double limit) const {
        bool none = true;
        for (const Row& row : rows) {
            if (row.ratio <= limit) continue;
            out << ' ' << row.length << " (" << row.ratio << ')';
            none = false;
        }
        if (none) out << " none";
    }
    int beyond(double limit) const {
        return static_cast<int>(
            std::ranges::count_if(rows, [&](const Row& row) { return row.ratio > limit; }));
    }

private:
    struct Row {
        double ratio;
        int length;
    };
    std::vector<Row> rows;
};

void summarisePeer(std::ostream& out, const Group& group) {
    const Ratios ratios(group, &Result::ratio);
    if (ratios.empty()) return;
    const std::string peer =
        registry::findFamily(group.front()->function->family)->byOrder ? "plain loop" : "FFTW";
    out << "  ours/" << peer << ": ";
    ratios.printMean(out);
    out << "\n  slower than " << peer << ':';
    ratios.printBeyond(out, 1);
    out << '\n';
}

void summariseOther(std::ostream& out, const Group& group, const std::string& manner, Ratio ratio) {
    const Ratios ratios(group, ratio);
    if (ratios.empty()) return;
    out << "  ours/other file, " << manner << ": ";
    ratios.printMean(out);
    out << "; beyond " << levelRatio << ':';
    ratios.printBeyond(out, levelRatio);
    out << '\n';
}

void summarise(std::ostream& out, const Group& group) {
    summarisePeer(out, group);
    summariseOther(out, group, "apart", &Result::otherRatio);
    summariseOther(out, group, "in place", &Result::inPlaceRatio);
    Group bound;   // shorter kernels are bound by the call itself
    for (const Result* result : group)
        if (result->function->length >= 8) bound.push_back(result);
    const Ratios ratios(bound, &Result::boundRatio);
    if (ratios.empty()) return;
    out << "  ours/bound of the additions: ";
    ratios.printWorst(out);
    out << " (from length 8 up)\n";
}

}   // namespace

void Result::keepFaster(const Result& again) {
    if (again.peerNs < peerNs) peer = again.peer;
    ns = std::min(ns, again.ns);
    medianNs = std::min(medianNs, again.medianNs);
    cycleNs = std::min(cycleNs, again.cycleNs);
    for (const auto side : {&Result::peerNs, &Result::otherNs, &Result::inPlaceNs,
                            &Result::otherInPlaceNs})
        this->*side = std::min(this->*side, again.*side);
}

std::optional<double> Result::ratio() const { return quotient(ns, peerNs); }
std::optional<double> Result::otherRatio() const { return quotient(ns, otherNs); }
std::optional<double> Result::inPlaceRatio() const { return quotient(inPlaceNs, otherInPlaceNs); }

std::optional<double> Result::boundNs() const {
    if (!counts) return std::nullopt;
    // Counted are operations on vectors of 16 bytes.
    return counts->additions / 2.0 * 128 / vectorBits * cycleNs;
}

std::optional<double> Result::boundRatio() const { return quotient(ns, boundNs()); }

void writeCsv(std::ostream& out, const std::vector<Result>& results) {
    out << "function,ns,median_ns,peer_ns,ratio,additions,multiplies,shuffles,bound_ns,"
           "bound_ratio,peer,other_ns,other_ratio,in_place_ns,other_in_place_ns,in_place_ratio\n"
        << std::fixed << std::setprecision(3);
    for (const Result& result : results) {
        out << result.function->name << ',' << result.ns << ',' << result.medianNs;
        cell(out, result.peerNs);
        cell(out, result.ratio());
        for (int OpCounts::*count :
             {&OpCounts::additions, &OpCounts::multiplies, &OpCounts::shuffles})
            cell(out, result.counts ? std::optional(*result.counts.*count) : std::nullopt);
        cell(out, result.boundNs());
        cell(out, result.boundRatio());
        out << ',' << result.peer;
        cell(out, result.otherNs);
        cell(out, result.otherRatio());
        cell(out, result.inPlaceNs);
        cell(out, result.otherInPlaceNs);
        cell(out, result.inPlaceRatio());
        out << '\n';
    }
}

void writeSummary(std::ostream& out, const std::vector<Result>& results) {
    std::map<std::string, Group> groups;
    Group all;
    for (const Result& result : results) {
        groups[std::string(result.function->family) + " " + result.function->element].push_back(
            &result);
        all.push_back(&result);
    }
    out << std::fixed << std::setprecision(2);
    for (const auto& [name, group] : groups) {
        out << name << '\n';
        summarise(out, group);
    }
    const Ratios apart(all, &Result::otherRatio), inPlace(all, &Result::inPlaceRatio);
    if (!apart.empty())
        out << "all functions: beyond " << levelRatio << " of the other file's time "
            << apart.beyond(levelRatio) << " apart, " << inPlace.beyond(levelRatio)
            << " in place\n";
}

}   // namespace kfm::bench
