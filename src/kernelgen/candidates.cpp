#include "kernelgen/candidates.h"

#include "kernelgen/joined_graph.h"

namespace kfm::kernelgen {
namespace {

// Each of the cheapest pairings with loads in either form, and what follows from it.
void addPairings(const Graph& g, const std::vector<PairingChoice>& before, int times,
                 std::vector<std::vector<PairingChoice>>& ways) {
    constexpr std::size_t pairings = 2;
    for (PairingChoice pairing : cheapestPairings(g, pairings)) {
        std::vector<PairingChoice> way = before;
        way.push_back(pairing);
        ways.push_back(way);
        if (times > 1)
            addPairings(joinedGraph(g, pairOperations(g, pairing)), way, times - 1, ways);
        way.back().loadsApart = true;
        ways.push_back(way);
    }
}

}   // namespace

// Wide where winners were found: with sums pinned. Relaundering helps a few long kernels.
std::vector<ScheduleChoice> scheduleCandidates() {
    constexpr int everything = 100000;
    std::vector<ScheduleChoice> candidates;
    const auto addOrders = [&](Pin pin, std::initializer_list<int> leaves) {
        for (const int leaf : leaves)
            for (const bool transposed : {false, true})
                candidates.push_back({leaf, 0, transposed, pin, false});
    };
    addOrders(Pin::none, {24, 80});
    addOrders(Pin::sums, {6, 24, 40, 80, 160, everything});
    addOrders(Pin::all, {6, 24, 80});
    for (const int seed : {1, 2})
        for (const int leaf : {24, 80}) candidates.push_back({leaf, seed, true, Pin::sums, false});
    for (const Pin pin : {Pin::sums, Pin::all}) candidates.push_back({24, 0, true, pin, true});
    return candidates;
}

std::vector<ScheduleChoice> rowsCandidates() {
    return {{24, 0, false, Pin::none, false}, {24, 0, false, Pin::sums, false},
            {24, 0, true, Pin::sums, false},  {6, 0, false, Pin::sums, false},
            {80, 0, false, Pin::none, false}, {80, 0, true, Pin::all, false}};
}

std::vector<ScheduleChoice> pairingCandidates(const Graph& g, const ScheduleChoice& recorded,
                                              int times) {
    std::vector<std::vector<PairingChoice>> ways = {{}};
    addPairings(g, {}, times, ways);
    std::vector<ScheduleChoice> candidates = {recorded};
    for (ScheduleChoice order : {recorded, ScheduleChoice{24, 0, true, Pin::sums, false}})
        for (const std::vector<PairingChoice>& way : ways) {
            order.pairings = way;
            candidates.push_back(order);
        }
    return candidates;
}

std::vector<ScheduleChoice> orderCandidates(const ScheduleChoice& winner) {
    std::vector<ScheduleChoice> candidates = {{24, 0, false, Pin::sums, false},
                                              {80, 0, true, Pin::sums, false},
                                              {6, 0, false, Pin::all, false},
                                              {80, 0, false, Pin::none, false}};
    for (ScheduleChoice& candidate : candidates) candidate.pairings = winner.pairings;
    return candidates;
}

int pairingsToFill(const Graph& g, bool doublePrecision, const Target& target) {
    if (g.lanes() == 1) return 0;
    const bool wide = doublePrecision || g.arithmetic().mixed;
    const int filled = g.lanes() * (wide ? 8 : 4);
    int times = 0;
    while (filled << (times + 1) <= target.vectorBytes) ++times;
    return times;
}

}   // namespace kfm::kernelgen
