#include "kernelgen/packing.h"

#include <span>
#include <stdexcept>

namespace kfm::kernelgen {
namespace {

// The source element in a lane of a load, -1 where there is none.
int loadedElement(const Graph& g, Lane lane) {
    const Node& node = g.node(lane.vector);
    if (node.op != Op::load) return -1;
    return node.elements[lane.index];
}

Ref sumOf(Graph& g, std::span<const Ref> terms) {
    if (terms.empty()) return {};
    if (terms.size() == 1) return terms[0];
    const std::size_t half = terms.size() / 2;
    const Ref last = sumOf(g, terms.subspan(half));
    return g.add(sumOf(g, terms.first(half)), last);
}

}   // namespace

Ref pack(Graph& g, Lane a, Lane b) {
    if (b.isZero()) return withZero(g, a);
    if (a.isZero()) throw std::logic_error("the first of two packed lanes is zero");
    if (a.negative() != b.negative()) return g.flip(pack(g, a, -b), {0, 1});
    if (a.negative()) return -pack(g, -a, -b);
    const int first = loadedElement(g, a), second = loadedElement(g, b);
    if (first >= 0 && second >= 0) return g.load(first, second);
    return g.select(a.vector, b.vector, {a.index, g.lanes() + b.index});
}

Ref alone(Graph& g, Lane a) {
    if (a.isZero() || a.index == 0) return a.vector;
    if (a.negative()) return -alone(g, -a);
    if (const int element = loadedElement(g, a); element >= 0) return g.load(element);
    return g.select(a.vector, {a.index, 1 - a.index});
}

Ref withZero(Graph& g, Lane a) {
    if (a.isZero() || g.lanes() == 1) return a.vector;
    if (a.negative()) return -withZero(g, -a);
    if (const int element = loadedElement(g, a); element >= 0) return g.load(element);
    return g.select(a.vector, {a.index, -1});
}

Ref swapped(Graph& g, Ref a) { return a.isZero() ? a : g.select(a, {1, 0}); }

Ref balancedSum(Graph& g, const std::vector<Ref>& terms) { return sumOf(g, terms); }

}   // namespace kfm::kernelgen
