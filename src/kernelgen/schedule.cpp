#include "kernelgen/schedule.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <sstream>
#include <stdexcept>

namespace kfm::kernelgen {
namespace {

constexpr std::array<const char*, 3> pinNames = {"none", "sums", "all"};

struct Edges {
    std::vector<std::vector<int>> before, after;
};

Edges edgesBetween(const std::vector<std::vector<int>>& operands) {
    Edges edges{operands, std::vector<std::vector<int>>(operands.size())};
    for (int i = static_cast<int>(operands.size()) - 1; i >= 0; --i)
        for (const int operand : operands[i]) edges.after[operand].push_back(i);
    return edges;
}

class Scheduler {
public:
    Scheduler(Edges edges, const ScheduleChoice& choice)
        : edges_(std::move(edges)), choice_(choice), member_(edges_.before.size(), 0),
          remainingUses_(edges_.before.size()), time_(edges_.before.size(), -1),
          random_(static_cast<unsigned>(choice.seed)) {
        for (std::size_t i = 0; i < edges_.after.size(); ++i)
            remainingUses_[i] = static_cast<int>(edges_.after[i].size());
    }

    std::vector<int> run(const std::vector<int>& nodes) {
        order(nodes);
        return std::move(result_);
    }

private:
    void order(const std::vector<int>& nodes) {
        if (nodes.empty()) return;
        for (const std::vector<int>& component : components(nodes)) {
            if (static_cast<int>(component.size()) <= choice_.leaf) {
                orderGreedily(component);
            } else {
                const auto [red, blue] = bisect(component);
                order(red);
                order(blue);
            }
        }
    }

    // Marks `nodes` as the set under work and returns the mark.
    int enter(const std::vector<int>& nodes) {
        ++mark_;
        for (const int node : nodes) member_[node] = mark_;
        return mark_;
    }

    std::vector<std::vector<int>> components(const std::vector<int>& nodes) {
        const int inside = enter(nodes), taken = -inside;
        std::vector<std::vector<int>> result;
        for (const int start : nodes) {
            if (member_[start] != inside) continue;
            std::vector<int> component{start};
            member_[start] = taken;
            for (std::size_t i = 0; i < component.size(); ++i)
                for (const auto* neighbours : {&edges_.before, &edges_.after})
                    for (const int next : (*neighbours)[component[i]])
                        if (member_[next] == inside) {
                            member_[next] = taken;
                            component.push_back(next);
                        }
            std::sort(component.begin(), component.end());
            result.push_back(std::move(component));
        }
        return result;
    }

    // The nodes of `candidates` whose neighbours on one side all left the uncoloured set.
    std::vector<int> layer(const std::vector<int>& uncoloured, int inside,
                           const std::vector<std::vector<int>>& neighbours) const {
        std::vector<int> result;
        for (const int node : uncoloured)
            if (std::ranges::none_of(neighbours[node],
                                     [&](int other) { return member_[other] == inside; }))
                result.push_back(node);
        return result;
    }

    std::pair<std::vector<int>, std::vector<int>> bisect(const std::vector<int>& nodes) {
        const int inside = enter(nodes);
        std::vector<int> uncoloured = nodes, red, blue;
        for (bool redsTurn = true; !uncoloured.empty(); redsTurn = !redsTurn) {
            const std::vector<int> next =
                layer(uncoloured, inside, redsTurn ? edges_.before : edges_.after);
            for (const int node : next) {
                member_[node] = 0;
                (redsTurn ? red : blue).push_back(node);
            }
            std::erase_if(uncoloured, [&](int node) { return member_[node] != inside; });
        }
        return {red, blue};
    }

    void orderGreedily(const std::vector<int>& nodes) {
        const int inside = enter(nodes);
        std::vector<int> waiting = nodes;
        while (!waiting.empty()) {
            const std::vector<int> ready = layer(waiting, inside, edges_.before);
            int best = ready.front();
            auto bestCost = cost(best);
            for (const int node : ready)
                if (const auto nodeCost = cost(node); nodeCost < bestCost)
                    best = node, bestCost = nodeCost;
            emit(best);
            std::erase(waiting, best);
        }
    }

    // Growth of the live set in half values (a load counts half), then the tie-break.
    std::pair<int, long> cost(int node) {
        int growth = edges_.before[node].empty() ? 1 : 2;
        if (edges_.after[node].empty()) growth = 0;
        int youngest = -1;
        for (const int operand : edges_.before[node]) {
            if (remainingUses_[operand] == 1) growth -= 2;
            youngest = std::max(youngest, time_[operand]);
        }
        if (choice_.seed == 0) return {growth, -youngest};
        random_ = random_ * 1664525u + 1013904223u;
        return {growth, long(random_ >> 8)};
    }

    void emit(int node) {
        for (const int operand : edges_.before[node]) --remainingUses_[operand];
        time_[node] = static_cast<int>(result_.size());
        member_[node] = 0;
        result_.push_back(node);
    }

    Edges edges_;
    const ScheduleChoice& choice_;
    std::vector<int> member_;
    std::vector<int> remainingUses_;
    std::vector<int> time_;
    std::vector<int> result_;
    unsigned random_;
    int mark_ = 0;
};

}   // namespace

ScheduleChoice ScheduleChoice::parse(std::string_view text) {
    ScheduleChoice choice;
    std::istringstream parts{std::string(text)};
    std::string part;
    std::getline(parts, part, '/');
    std::istringstream in{part};
    while (std::getline(parts, part, '/')) choice.pairings.push_back(PairingChoice::parse(part));
    char colon[3];
    std::string pin;
    in >> choice.leaf >> colon[0] >> choice.seed >> colon[1] >> choice.transposed >> colon[2];
    std::getline(in, pin, ':');
    in >> choice.relaunder;
    const auto found = std::ranges::find(pinNames, pin);
    if (!in || found == pinNames.end())
        throw std::invalid_argument("no schedule: " + std::string(text));
    choice.pin = static_cast<Pin>(found - pinNames.begin());
    return choice;
}

std::string ScheduleChoice::text() const {
    std::ostringstream out;
    out << leaf << ':' << seed << ':' << transposed << ':' << pinNames[static_cast<int>(pin)] << ':'
        << relaunder;
    for (const PairingChoice& pairing : pairings) out << '/' << pairing.text();
    return out.str();
}

std::vector<int> schedule(const std::vector<std::vector<int>>& operands,
                          const ScheduleChoice& choice) {
    Edges edges = edgesBetween(operands);
    if (choice.transposed) std::swap(edges.before, edges.after);
    std::vector<int> all(operands.size());
    std::iota(all.begin(), all.end(), 0);
    std::vector<int> order = Scheduler(std::move(edges), choice).run(all);
    if (choice.transposed) std::ranges::reverse(order);
    return order;
}

std::vector<int> schedule(const Graph& g, const ScheduleChoice& choice) {
    const std::vector<int> live = g.liveNodes();
    std::vector<int> numbers(g.nodes().size());
    std::vector<std::vector<int>> operands;
    for (const int node : live) {
        numbers[node] = static_cast<int>(operands.size());
        std::vector<int>& own = operands.emplace_back();
        const auto [a, b] = std::pair(g.nodes()[node].a, g.nodes()[node].b);
        for (const Ref operand : {a, b == a ? Ref() : b})
            if (!operand.isZero()) own.push_back(numbers[operand.node()]);
    }
    std::vector<int> order = schedule(operands, choice);
    for (int& place : order) place = live[place];
    return order;
}

}   // namespace kfm::kernelgen
