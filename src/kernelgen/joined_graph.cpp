#include "kernelgen/joined_graph.h"

#include <utility>

#include "kernelgen/pairing_state.h"

namespace kfm::kernelgen {
namespace {

template <class T>
std::vector<T> chained(std::vector<T> low, const std::vector<T>& high) {
    low.insert(low.end(), high.begin(), high.end());
    return low;
}

class Joining {
public:
    Joining(const Graph& g, const Pairing& pairing)
        : g_(g), pairing_(pairing), lanes_(g.lanes()), rows_(g), joined_(Graph::forPairsOf(g)),
          computed_(g.nodes().size()) {
        for (const int item : rows_.items())
            if (!pairing_.alone(item)) rows_.join(low(item), high(item));
        rows_.commit();
    }

    Graph run() {
        for (int i = 0; i < static_cast<int>(g_.outputs().size()); ++i) addOutput(i);
        return std::move(joined_);
    }

private:
    const Node& node(int item) const { return g_.nodes()[item]; }
    // 1: the upper one.
    int half(int item) const { return pairing_.alone(item) ? 0 : pairing_.upper[item]; }
    int low(int item) const { return half(item) ? pairing_.partner[item] : item; }
    int high(int item) const { return half(item) ? item : pairing_.partner[item]; }

    // What computes a node, alone or with its partner.
    Ref computed(int item) {
        const int first = low(item);
        if (computed_[first].isZero())
            computed_[first] = pairing_.alone(item) ? single(item) : pair(first, high(item));
        return computed_[first];
    }

    // A node in the lower half of a vector.
    Ref one(int item) {
        const Ref ref = computed(item);
        if (!half(item)) return ref;
        return joined_.append(
            {.op = Op::join, .a = ref, .pattern = {1, -1}, .half = true, .move = true});
    }

    // Two nodes as the halves of a vector.
    Ref two(int a, int b) {
        if (pairing_.joins(a, b)) return computed(a);
        if (node(a).op == Op::load && node(b).op == Op::load) return pair(a, b);
        const Ref first = computed(a), second = computed(b);
        return joined_.append(
            {.op = Op::join, .a = first, .b = second, .pattern = {half(a), half(b)}, .move = true});
    }

    Ref single(int item) {
        const Node& original = node(item);
        Node result = original;
        result.half = true;
        if (!original.a.isZero()) result.a = one(original.a.node());
        if (!original.b.isZero()) result.b = one(original.b.node());
        return append(std::move(result), original, original);
    }

    Ref pair(int item, int other) {
        const Node &a = node(item), &b = node(other);
        Node result = {.op = a.op, .move = a.move};
        if (a.op == Op::load) {
            result.elements = chained(filled(a.elements), filled(b.elements));
            result.apart = pairing_.loadsApart;
        }
        if (a.op != b.op) result.op = Op::add;
        for (const int which : {0, 1}) {
            const auto [p, q] = rows_.asked(item, other)[which];
            if (p >= 0) (which == 0 ? result.a : result.b) = two(p, q);
        }
        if (a.op != b.op) result.b = negatedHalf(result.b, a.op == Op::add);
        return append(std::move(result), a, b);
    }

    // A sum and a difference: the signs go into one of the halves.
    Ref negatedHalf(Ref ref, bool upper) {
        LanePattern signs(lanes_, !upper);
        signs.resize(2 * lanes_, upper);
        return joined_.append({.op = Op::flip, .a = ref, .pattern = signs, .move = true});
    }

    // With what the two halves bring along.
    Ref append(Node result, const Node& low, const Node& high) {
        if (low.op == Op::mul)
            return joined_.append(std::move(result),
                                  chained(g_.constant(low.constant), g_.constant(high.constant)));
        if (low.op == Op::flip || low.op == Op::subtract)
            result.pattern = chained(low.pattern, high.pattern);
        if (low.op == Op::select || low.op == Op::join) {
            result.op = Op::select;
            result.pattern = selection(result, low, high);
        }
        return joined_.append(std::move(result));
    }

    // Of two lanes each comes from an operand of its own (PairingState), of four from any.
    LanePattern selection(const Node& result, const Node& low, const Node& high) const {
        const LanePattern patterns[] = {lanesOf(low), lanesOf(high)};
        LanePattern lanes;
        for (const int upper : {0, 1})
            for (int i = 0; i < lanes_; ++i) {
                const int from = patterns[upper][i];
                const bool ofB = lanes_ == 2 && !result.half ? i == 1 : from >= lanes_;
                const bool second = ofB && (result.half || result.a != result.b);
                const int lane = upper * lanes_ + from % lanes_;
                lanes.push_back(from < 0 ? -1 : second ? 2 * lanes_ + lane : lane);
            }
        return lanes;
    }

    LanePattern lanesOf(const Node& node) const {
        if (node.op == Op::select) return node.pattern;
        LanePattern lanes;
        for (const int which : {0, 1})
            for (int i = 0; i < lanes_ / 2; ++i)
                lanes.push_back(node.pattern[which] < 0
                                    ? lanes[i]
                                    : which * lanes_ + node.pattern[which] * lanes_ / 2 + i);
        return lanes;
    }

    // What was a half already leaves its upper half empty.
    std::vector<int> filled(std::vector<int> elements) const {
        elements.resize(lanes_ / g_.lanesPerElement(), -1);
        return elements;
    }

    void addOutput(int number) {
        const int nodes = static_cast<int>(g_.nodes().size()), item = nodes + number;
        if (half(item)) return;   // goes with its partner
        const bool alone = pairing_.alone(item);
        const Output& first = g_.outputs()[number];
        const Output& second = alone ? first : g_.outputs()[high(item) - nodes];
        const Ref value = alone ? one(first.node) : two(first.node, second.node);
        std::vector<int> elements = first.elements;
        if (!alone) elements = chained(filled(elements), filled(second.elements));
        joined_.append(Output{elements, value.node(), chained(first.negated, second.negated)});
    }

    const Graph& g_;
    const Pairing& pairing_;
    const int lanes_;
    PairingState rows_;
    Graph joined_;
    std::vector<Ref> computed_;   // by the lower half
};

}   // namespace

Graph joinedGraph(const Graph& g, const Pairing& pairing) { return Joining(g, pairing).run(); }

}   // namespace kfm::kernelgen
