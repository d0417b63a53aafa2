#include "kernelgen/transpose.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace kfm::kernelgen {
namespace {

// What one user of a node passes back: for each lane of the node the lane of `value` it receives,
// or -1.
struct Part {
    Ref value;
    LanePattern lanes;
};

// A vector of which some lanes are meant; the others hold anything.
struct Partial {
    Ref value;
    std::vector<char> meant;
};

class Transposition {
public:
    Transposition(const Graph& network, Graph& target)
        : network_(network), target_(target), lanes_(network.lanes()),
          parts_(network.nodes().size()), carries_(network.nodes().size()) {
        markCarryingLanes();
    }

    void contribute(Ref to, Part part) {
        if (to.isZero() || part.value.isZero()) return;
        for (int lane = 0; lane < lanes_; ++lane)
            if (!carries_[to.node()][lane]) part.lanes[lane] = -1;
        if (std::ranges::all_of(part.lanes, [](int lane) { return lane < 0; })) return;
        if (to.negative()) part.value = -part.value;
        parts_[to.node()].push_back(std::move(part));
    }

    // The value of every node, last to first; then those of the source elements.
    void run() {
        sums_.resize(parts_.size());
        for (int i = static_cast<int>(parts_.size()) - 1; i >= 0; --i) {
            sums_[i] = sum(parts_[i]);
            if (!sums_[i].value.isZero()) passOn(network_.nodes()[i], sums_[i]);
        }
    }

    const Partial& of(Ref node) const { return sums_[node.node()]; }

    std::vector<Lane> elements(int count) {
        std::vector<std::vector<Lane>> terms(count);
        for (std::size_t i = 0; i < sums_.size(); ++i) {
            const Node& node = network_.nodes()[i];
            if (node.op != Op::load || sums_[i].value.isZero()) continue;
            for (int lane = 0; lane < lanes_; ++lane) {
                const int element = node.elements[lane];
                if (element >= 0 && sums_[i].meant[lane])
                    terms[element].push_back({sums_[i].value, lane});
            }
        }
        return sumsOfLanes(terms);
    }

private:
    // Lanes that depend on a source element; what flows back into others is lost.
    void markCarryingLanes() {
        for (std::size_t i = 0; i < carries_.size(); ++i) {
            const Node& node = network_.nodes()[i];
            carries_[i].resize(lanes_);
            for (int lane = 0; lane < lanes_; ++lane) carries_[i][lane] = carries(node, lane);
        }
    }

    bool carries(const Node& node, int lane) const {
        const auto operand = [&](Ref ref, int from) {
            return !ref.isZero() && carries_[ref.node()][from];
        };
        if (node.op == Op::load) return node.elements[lane / network_.lanesPerElement()] >= 0;
        if (node.op != Op::select) return operand(node.a, lane) || operand(node.b, lane);
        const int from = node.pattern[lane];
        return from >= 0 && operand(from < lanes_ ? node.a : node.b, from % lanes_);
    }

    void contribute(Ref to, const Partial& from) {
        LanePattern lanes(lanes_);
        for (int i = 0; i < lanes_; ++i) lanes[i] = from.meant[i] ? i : -1;
        contribute(to, Part{from.value, lanes});
    }

    void passOn(const Node& node, const Partial& sum) {
        switch (node.op) {
        case Op::load: return;
        case Op::add:
        case Op::sub:
            contribute(node.a, sum);
            contribute(node.b, Partial{node.op == Op::add ? sum.value : -sum.value, sum.meant});
            return;
        case Op::mul:
            contribute(node.a, Partial{target_.mul(network_.constant(node.constant), sum.value),
                                       sum.meant});
            return;
        case Op::flip:
            contribute(node.a, Partial{target_.flip(sum.value, node.pattern), sum.meant});
            return;
        case Op::round: contribute(node.a, Partial{target_.rounded(sum.value), sum.meant}); return;
        case Op::select:
            for (const bool first : {true, false}) passLanes(node, sum, first);
            return;
        default: throw std::logic_error("this operation has no transpose");
        }
    }

    void passLanes(const Node& node, const Partial& sum, bool first) {
        LanePattern lanes(lanes_, -1);
        for (int lane = 0; lane < lanes_; ++lane) {
            const int from = node.pattern[lane];
            if (from >= 0 && sum.meant[lane] && (from < lanes_) == first)
                lanes[from % lanes_] = lane;
        }
        contribute(first ? node.a : node.b, Part{sum.value, lanes});
    }

    // Whole vectors are added as they are; of the rest, one lane each is packed with another.
    Partial sum(const std::vector<Part>& parts) {
        std::vector<Ref> terms;
        std::vector<std::vector<Lane>> rest(lanes_);
        for (const Part& part : parts) {
            if (std::ranges::none_of(part.lanes, [](int lane) { return lane < 0; }))
                terms.push_back(arranged(part));
            else
                for (int lane = 0; lane < lanes_; ++lane)
                    if (part.lanes[lane] >= 0) rest[lane].push_back({part.value, part.lanes[lane]});
        }
        if (std::ranges::all_of(rest, [](const auto& lanes) { return lanes.empty(); }))
            return {balancedSum(target_, terms), std::vector<char>(lanes_, 1)};
        if (lanes_ != 2) throw std::logic_error("single lanes are transposed in pairs only");
        return sumOfPairs(terms, rest[0], rest[1]);
    }

    Ref arranged(const Part& part) {
        for (int lane = 0; lane < lanes_; ++lane)
            if (part.lanes[lane] != lane) return target_.select(part.value, part.lanes);
        return part.value;
    }

    Partial sumOfPairs(std::vector<Ref> terms, std::vector<Lane> low, std::vector<Lane> high) {
        pairEqualVectors(low, high);
        const std::size_t pairs = std::min(low.size(), high.size());
        for (std::size_t i = 0; i < pairs; ++i) terms.push_back(pack(target_, low[i], high[i]));
        low.erase(low.begin(), low.begin() + pairs);
        high.erase(high.begin(), high.begin() + pairs);
        const bool whole = !terms.empty();
        for (const Lane& lane : low)
            terms.push_back(whole ? withZero(target_, lane) : alone(target_, lane));
        for (const Lane& lane : high) terms.push_back(inHighLane(lane, whole));
        return {balancedSum(target_, terms), {whole || !low.empty(), whole || !high.empty()}};
    }

    // Lanes of one vector meet each other again.
    static void pairEqualVectors(std::vector<Lane>& low, std::vector<Lane>& high) {
        std::size_t paired = 0;
        for (std::size_t i = 0; i < low.size(); ++i) {
            const auto found = std::find_if(high.begin() + paired, high.end(), [&](Lane lane) {
                return lane.vector.magnitude() == low[i].vector.magnitude();
            });
            if (found == high.end()) continue;
            std::swap(high[paired], *found);
            std::swap(low[paired++], low[i]);
        }
    }

    Ref inHighLane(Lane lane, bool zeroBelow) {
        if (zeroBelow) return target_.select(withZero(target_, lane), {1, 0});
        return lane.index == 1 ? lane.vector : target_.select(lane.vector, {1, 0});
    }

    // Sums over elements with equally many terms are made in pairs.
    std::vector<Lane> sumsOfLanes(const std::vector<std::vector<Lane>>& terms) {
        std::vector<Lane> result(terms.size());
        std::vector<std::size_t> several;
        for (std::size_t i = 0; i < terms.size(); ++i) {
            if (terms[i].size() == 1) result[i] = terms[i][0];
            if (terms[i].size() > 1) several.push_back(i);
        }
        for (std::size_t i = 0; i + 1 < several.size(); i += 2) {
            const Ref both = sumOfPairs({}, terms[several[i]], terms[several[i + 1]]).value;
            result[several[i]] = {both, 0};
            result[several[i + 1]] = {both, 1};
        }
        if (several.size() % 2 == 1)
            result[several.back()] = {sumOfPairs({}, terms[several.back()], {}).value, 0};
        return result;
    }

    const Graph& network_;
    Graph& target_;
    int lanes_;
    std::vector<std::vector<Part>> parts_;
    std::vector<std::vector<char>> carries_;
    std::vector<Partial> sums_;
};

Transposition run(const Graph& network, std::span<const WeightedOutput> outputs, Graph& target) {
    Transposition transposition(network, target);
    LanePattern own(network.lanes());
    std::iota(own.begin(), own.end(), 0);
    for (const auto& [output, value, lanes] : outputs)
        transposition.contribute(output, Part{value, lanes.empty() ? own : lanes});
    transposition.run();
    return transposition;
}

}   // namespace

std::vector<Lane> transposedLanes(const Graph& network, int elements,
                                  std::span<const WeightedOutput> outputs, Graph& target) {
    return run(network, outputs, target).elements(elements);
}

std::vector<Ref> transposed(const Graph& network, std::span<const Ref> inputs,
                            std::span<const WeightedOutput> outputs, Graph& target) {
    const Transposition transposition = run(network, outputs, target);
    std::vector<Ref> result;
    for (const Ref input : inputs) result.push_back(transposition.of(input).value);
    return result;
}

}   // namespace kfm::kernelgen
