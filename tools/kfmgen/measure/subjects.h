// The transforms as measurements take them: how each is called, what else does the same, and what it
// should give.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "definition/definition.h"
#include "peer.h"
#include "registry/registry.h"

namespace kfm::tool {

struct SubjectChoice {
    std::string family;   // as `kfmgen list` names it; empty: all
    std::optional<bool> doublePrecision;
    std::optional<std::pair<int, int>> lengths;   // first and last
    int longestPlanned = 0;                       // of the DCT-IV; a definition takes its square
};

// One transform, without scaling.
struct Subject {
    std::string name;   // of the function
    std::string family;
    const registry::Element* element;
    int length;   // of the signal

    // Arrays have room for `reals` numbers; those that a spectrum holds and no function reads, the
    // imaginary parts of bins that are real, have to be zero.
    std::size_t reals;
    std::vector<std::size_t> zeros;

    std::function<void(const void* source, void* destination)> call;
    std::function<std::function<void(long)>()> repeat;   // so many calls, on new arrays
    std::function<bench::PeerPlan()> peer;
    double peerFactor;   // of its outputs to ours; 0 where they lie otherwise

    std::function<std::vector<Quad>(std::span<const double>)> definition;
    std::function<Quad(std::span<const Quad>)> largest;
};

// In the order of `kfmgen list`. Throws UsageError where there is none.
std::vector<Subject> subjects(const SubjectChoice& choice);

// Of all that can be chosen.
std::vector<std::string> measuredFamilies();

}   // namespace kfm::tool
