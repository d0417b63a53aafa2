#include "kernelgen/rows_graphs.h"

#include <stdexcept>
#include <utility>

#include "kernelgen/joined_graph.h"

namespace kfm::kernelgen {
namespace {

class Spreading {
public:
    Spreading(const Graph& g, int rows)
        : g_(g), all_(rows, 1), spread_(rows, g.arithmetic(), rows),
          values_(g.nodes().size() * g.lanes()) {}

    Graph run() {
        for (const Output& output : g_.outputs())
            for (int lane = 0; lane < g_.lanes(); ++lane) addOutput(output, lane);
        return std::move(spread_);
    }

private:
    // The number of a lane of a load or output among all lanes; -1: none.
    int number(const std::vector<int>& elements, int lane) const {
        const int width = g_.lanesPerElement(), element = elements[lane / width];
        return element < 0 ? -1 : element * width + lane % width;
    }

    void addOutput(const Output& output, int lane) {
        const int place = number(output.elements, lane);
        if (place < 0) return;
        const Ref value = laneOf(Ref::toNode(output.node), lane);
        const bool changesSign = !output.negated.empty() && output.negated[lane];
        const bool negated = value.negative() != changesSign;
        spread_.append(Output{{place}, value.node(), negated ? all_ : LanePattern()});
    }

    Ref laneOf(Ref ref, int lane) {
        Ref& value = values_[ref.node() * g_.lanes() + lane];
        if (value.isZero()) value = computed(g_.node(ref), lane);
        return value;
    }

    Ref computed(const Node& node, int lane) {
        switch (node.op) {
        case Op::load:
            return spread_.append({.op = Op::load, .elements = {number(node.elements, lane)}});
        case Op::add:
        case Op::sub: {
            const Ref a = laneOf(node.a, lane), b = laneOf(node.b, lane);
            return sum(a, node.op == Op::add ? b : -b);
        }
        case Op::mul: return product(g_.constant(node.constant)[lane], laneOf(node.a, lane));
        case Op::select: {
            const int from = node.pattern[lane];
            if (from < 0) return zero(node.wide);
            return from < g_.lanes() ? laneOf(node.a, from) : laneOf(node.b, from - g_.lanes());
        }
        case Op::flip: {
            const Ref value = laneOf(node.a, lane);
            return node.pattern[lane] ? -value : value;
        }
        case Op::subtract: {
            const Ref value = laneOf(node.a, lane);
            if (!node.pattern[lane]) return value;
            return spread_.append({.op = Op::subtract, .a = asNode(value), .pattern = all_});
        }
        case Op::widen:
        case Op::round:
            return signedLike(laneOf(node.a, lane), [&](Ref magnitude) {
                return spread_.append({.op = node.op, .a = magnitude});
            });
        case Op::join: break;
        }
        throw std::logic_error("a joined graph cannot be spread");
    }

    Ref zero(bool wide) {
        const Ref narrow = spread_.append({.op = Op::load, .elements = {-1}});
        return wide ? spread_.append({.op = Op::widen, .a = narrow}) : narrow;
    }

    template <class Operation>
    static Ref signedLike(Ref value, Operation operation) {
        const Ref result = operation(value.magnitude());
        return value.negative() ? -result : result;
    }

    // A value whose sign is its own.
    Ref asNode(Ref value) {
        if (!value.negative()) return value;
        return spread_.append({.op = Op::flip, .a = value.magnitude(), .pattern = all_});
    }

    // Of two negated values as -a - b: -(a + b) would have another zero where they cancel.
    Ref sum(Ref a, Ref b) {
        if (!b.negative() && a.negative()) std::swap(a, b);
        return spread_.append(
            {.op = b.negative() ? Op::sub : Op::add, .a = asNode(a), .b = b.magnitude()});
    }

    Ref product(const Constant& factor, Ref value) {
        if (factor == Constant(1)) return value;
        if (factor == Constant(-1)) return -value;
        return signedLike(value, [&](Ref magnitude) {
            return spread_.append({.op = Op::mul, .a = magnitude},
                                  LaneConstant(all_.size(), factor));
        });
    }

    const Graph& g_;
    const LanePattern all_;
    Graph spread_;
    std::vector<Ref> values_;   // by node and lane
};

// `g` after itself in one graph.
Graph repeated(const Graph& g, int upperRow) {
    Graph both = g;
    const int count = static_cast<int>(g.nodes().size());
    const auto moved = [&](Ref ref) {
        return ref.isZero() ? ref : Ref::toNode(ref.node() + count);
    };
    const auto upper = [&](std::vector<int> elements) {
        for (int& element : elements)
            if (element >= 0) element += upperRow;
        return elements;
    };
    for (Node node : g.nodes()) {
        node.a = moved(node.a);
        node.b = moved(node.b);
        node.elements = upper(node.elements);
        both.append(std::move(node));
    }
    for (const Output& output : g.outputs())
        both.append(Output{upper(output.elements), output.node + count, output.negated});
    return both;
}

}   // namespace

Graph spreadGraph(const Graph& g, int rows) { return Spreading(g, rows).run(); }

Graph twoRowsGraph(const Graph& g, int upperRow) {
    const Graph both = repeated(g, upperRow);
    const int nodes = static_cast<int>(g.nodes().size());
    const int outputs = static_cast<int>(g.outputs().size());
    Pairing pairing = {std::vector<int>(2 * (nodes + outputs), -1),
                       std::vector<char>(2 * (nodes + outputs), 0)};
    const auto pair = [&](int low, int high) {
        pairing.partner[low] = high;
        pairing.partner[high] = low;
        pairing.upper[high] = 1;
    };
    for (int node = 0; node < nodes; ++node) pair(node, nodes + node);
    for (int i = 0; i < outputs; ++i) pair(2 * nodes + i, 2 * nodes + outputs + i);
    return joinedGraph(both, pairing);
}

}   // namespace kfm::kernelgen
