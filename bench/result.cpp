// Formats the results.
#include "result.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "ratios.h"
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

using Ratio = std::optional<double> (Result::*)() const;

void summarisePeer(std::ostream& out, const Group<Result>& group) {
    const Ratios ratios(group, &Result::ratio);
    if (ratios.empty()) return;
    const std::string peer =
        registry::findFamily(group.front()->function->family)->byOrder ? "plain loop" : "FFTW";
    ratios.printPeer(out, "ours", peer);
}

void summariseOther(std::ostream& out, const Group<Result>& group, const std::string& manner,
                    Ratio ratio) {
    const Ratios ratios(group, ratio);
    if (!ratios.empty()) ratios.printLevel(out, "ours/other file, " + manner, levelRatio);
}

void summarise(std::ostream& out, const Group<Result>& group) {
    summarisePeer(out, group);
    summariseOther(out, group, "apart", &Result::otherRatio);
    summariseOther(out, group, "in place", &Result::inPlaceRatio);
    Group<Result> bound;   // shorter kernels are bound by the call itself
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
    for (const auto side :
         {&Result::peerNs, &Result::otherNs, &Result::inPlaceNs, &Result::otherInPlaceNs})
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
    Group<Result> all;
    for (const Result& result : results) all.push_back(&result);
    out << std::fixed << std::setprecision(2);
    for (const auto& [name, group] : grouped(results)) {
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
