// Formats the results.
#include "result.h"

#include <cmath>
#include <iomanip>
#include <map>
#include <ostream>

namespace kfm::bench {
namespace {

template <class Value>
void cell(std::ostream& out, const std::optional<Value>& value) {
    out << ',';
    if (value) out << *value;
}

// The largest of a value that some results may lack.
struct Worst {
    double value = 0;
    int length = 0;
    void take(const std::optional<double>& candidate, int candidateLength) {
        if (candidate && *candidate > value) *this = {*candidate, candidateLength};
    }
};

void summarise(std::ostream& out, const std::vector<const Result*>& group) {
    double logarithms = 0;
    int compared = 0;
    Worst ratio, boundRatio;
    for (const Result* result : group) {
        const int length = result->function->length;
        ratio.take(result->ratio(), length);
        // Shorter kernels are bound by the call itself.
        if (length >= 8) boundRatio.take(result->boundRatio(), length);
        if (!result->ratio()) continue;
        logarithms += std::log(*result->ratio());
        ++compared;
    }
    if (compared > 0) {
        const std::string peer =
            registry::findFamily(group.front()->function->family)->byOrder ? "plain loop" : "FFTW";
        out << "  ours/" << peer << ": geometric mean " << std::exp(logarithms / compared) << " of "
            << compared << " lengths, worst " << ratio.value << " at " << ratio.length
            << "\n  slower than " << peer << ':';
        for (const Result* result : group)
            if (result->ratio().value_or(0) > 1)
                out << ' ' << result->function->length << " (" << *result->ratio() << ')';
        out << (ratio.value > 1 ? "\n" : " none\n");
    }
    if (boundRatio.length)
        out << "  ours/bound of the additions: worst " << boundRatio.value << " at "
            << boundRatio.length << " (from length 8 up)\n";
}

}   // namespace

std::optional<double> Result::ratio() const {
    if (!peerNs) return std::nullopt;
    return ns / *peerNs;
}

std::optional<double> Result::boundNs() const {
    if (!counts) return std::nullopt;
    return counts->additions / 2.0 * cycleNs;
}

std::optional<double> Result::boundRatio() const {
    if (!counts) return std::nullopt;
    return ns / *boundNs();
}

void writeCsv(std::ostream& out, const std::vector<Result>& results) {
    out << "function,ns,median_ns,peer_ns,ratio,additions,multiplies,shuffles,bound_ns,"
           "bound_ratio\n"
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
        out << '\n';
    }
}

void writeSummary(std::ostream& out, const std::vector<Result>& results) {
    std::map<std::string, std::vector<const Result*>> groups;
    for (const Result& result : results)
        groups[std::string(result.function->family) + " " + result.function->element].push_back(
            &result);
    out << std::fixed << std::setprecision(2);
    for (const auto& [name, group] : groups) {
        out << name << '\n';
        summarise(out, group);
    }
}

}   // namespace kfm::bench
