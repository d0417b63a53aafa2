// Ratios over the lengths of a family, as summaries print them. Below 1 the library measured is
// faster.
#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "registry/functions.h"

namespace kfm::bench {

template <class Result>
using Group = std::vector<const Result*>;

// The results of each family and element type, under their names.
template <class Result>
std::map<std::string, Group<Result>> grouped(const std::vector<Result>& results) {
    std::map<std::string, Group<Result>> groups;
    for (const Result& result : results)
        groups[std::string(result.function->family) + " " + result.function->element].push_back(
            &result);
    return groups;
}

// One ratio over the results that have it.
class Ratios {
public:
    template <class Result>
    Ratios(const Group<Result>& group, std::optional<double> (Result::*ratio)() const) {
        for (const Result* result : group)
            if (const auto value = (result->*ratio)())
                rows.push_back({*value, result->function->length});
    }
    bool empty() const { return rows.empty(); }

    // "  ours/FFTW: " and the mean, then where it is slower.
    void printPeer(std::ostream& out, const std::string& ours, const std::string& peer) const;
    // "  <sides>: " and the mean, then what is beyond a limit.
    void printLevel(std::ostream& out, const std::string& sides, double limit) const;
    void printWorst(std::ostream& out) const;
    int beyond(double limit) const;

private:
    void printMean(std::ostream& out) const;
    void printBeyond(std::ostream& out, double limit) const;

    struct Row {
        double ratio;
        int length;
    };
    std::vector<Row> rows;
};

}   // namespace kfm::bench
