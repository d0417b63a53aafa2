// The rewrites, all of them:
//   a + 0 = a;  a - a = 0;  a + a = 2*a;  (-a) + (-b) = -(a + b);  a + (-b) = a - b
//   a - b = -(b - a) where b - a exists already
//   c*x + c*y = c*(x + y), which saves a multiplication (the one rewrite that moves a rounding)
//   0*a = 0;  1*a = a;  (-c)*a = -(c*a);  c*(-a) = -(c*a);  c*(d*a) = (c*d)*a
//   select of two negations is the negation of the select; selecting a operand's own lanes is it
//   0 - (a - b) = b - a, except where the signs of zeros are fixed: it makes -0.0 of +0.0 - -0.0
#include "kernelgen/graph.h"

#include <algorithm>
#include <stdexcept>

namespace kfm::kernelgen {
namespace {

bool all(const LaneConstant& c, auto&& predicate) {
    return std::all_of(c.begin(), c.end(), predicate);
}

bool uniform(const LaneConstant& c) {
    return all(c, [&](const Constant& lane) { return lane == c.front(); });
}

LaneConstant product(const LaneConstant& c, const LaneConstant& d) {
    LaneConstant result(c.size());
    for (std::size_t lane = 0; lane < c.size(); ++lane) result[lane] = c[lane] * d[lane];
    return result;
}

}   // namespace

Ref Graph::intern(Node node) {
    const Key key{node.op, node.a, node.b, node.constant, node.elements, node.pattern, node.half};
    const auto [found, inserted] = index_.try_emplace(key, static_cast<int>(nodes_.size()));
    if (inserted) {
        node.wide = computesWide(node);
        nodes_.push_back(std::move(node));
    }
    return Ref::toNode(found->second);
}

int Graph::internConstant(const LaneConstant& c) {
    const auto [found, inserted] =
        constantIndex_.try_emplace(c, static_cast<int>(constants_.size()));
    if (inserted) constants_.push_back(c);
    return found->second;
}

bool Graph::computesWide(const Node& node) const {
    if (node.op == Op::load || node.op == Op::round) return false;
    return node.op == Op::widen || wide(node.a) || wide(node.b);
}

Ref Graph::widened(Ref a) {
    if (a.isZero() || wide(a)) return a;
    const Ref magnitude = intern({.op = Op::widen, .a = a.magnitude()});
    return a.negative() ? -magnitude : magnitude;
}

void Graph::matchPrecision(Ref& a, Ref& b) {
    if (wide(a) == wide(b)) return;
    a = widened(a);
    b = widened(b);
}

Ref Graph::rounded(Ref a) {
    if (a.isZero()) return a;
    if (a.negative()) return -rounded(-a);
    const bool already = node(a).op == Op::round;
    if (already || !(arithmetic_.marking || wide(a))) return a;
    return intern({.op = Op::round, .a = a});
}

bool Graph::sameFactor(Ref a, Ref b) const {
    return arithmetic_.factoring && node(a).op == Op::mul && node(b).op == Op::mul &&
           node(a).constant == node(b).constant;
}

Ref Graph::load(int first, int second) {
    return intern({.op = Op::load, .elements = elements(first, second)});
}

Ref Graph::add(Ref a, Ref b) {
    if (a.isZero()) return b;
    if (b.isZero()) return a;
    if (a == -b) return {};
    if (a == b) return mul(Constant(2), a);
    if (a.negative() && b.negative()) return -add(-a, -b);
    if (a.negative()) return difference(b, -a);
    if (b.negative()) return difference(a, -b);
    if (sameFactor(a, b)) return commonFactor(a, b, false);
    matchPrecision(a, b);
    return intern({.op = Op::add, .a = std::min(a, b), .b = std::max(a, b)});
}

// c*x + c*y or c*x - c*y as one product; the sum is narrow where x and y are.
Ref Graph::commonFactor(Ref a, Ref b, bool negative) {
    const LaneConstant factor = constants_[node(a).constant];
    const auto operand = [&](Ref product) {
        const Ref x = node(product).a;
        return node(x).op == Op::widen ? node(x).a : x;
    };
    const Ref x = operand(a), y = operand(b);
    return mul(factor, negative ? sub(x, y) : add(x, y));
}

Ref Graph::difference(Ref a, Ref b) {
    if (sameFactor(a, b)) return commonFactor(a, b, true);
    matchPrecision(a, b);
    const auto reversed = index_.find({Op::sub, b, a, 0, {}, {}, false});
    if (reversed != index_.end()) return -Ref::toNode(reversed->second);
    return intern({.op = Op::sub, .a = a, .b = b});
}

Ref Graph::mul(const LaneConstant& c, Ref a) {
    if (a.isZero() || all(c, [](const Constant& lane) { return lane.isZero(); })) return {};
    if (a.negative()) return -mul(c, -a);
    if (arithmetic_.factoring && node(a).op == Op::mul)
        return mul(product(c, constants_[node(a).constant]), node(a).a);
    if (node(a).op == Op::widen && node(node(a).a).op == Op::mul) return mul(c, node(a).a);
    if (uniform(c)) {
        if (c.front() == Constant(1)) return a;
        if (c.front() < Constant(0)) return -mul(LaneConstant(lanes_, -c.front()), a);
    }
    // Doubling is exact in either precision.
    const bool doubling = uniform(c) && c.front() == Constant(2);
    if (arithmetic_.mixed && !doubling) a = widened(a);
    return intern({.op = Op::mul, .a = a, .constant = internConstant(c)});
}

// The value of `a` as a positive reference. A negated difference or product costs nothing: the
// operands are exchanged, the constant changes its sign.
Ref Graph::unsignedRef(Ref a) {
    if (!a.negative()) return a;
    const Node original = node(a);
    if (original.op == Op::sub) return intern({.op = Op::sub, .a = original.b, .b = original.a});
    if (original.op == Op::mul) {
        const LaneConstant negated =
            product(LaneConstant(lanes_, -1), constants_[original.constant]);
        return intern({.op = Op::mul, .a = original.a, .constant = internConstant(negated)});
    }
    return flip(-a, LanePattern(lanes_, 1));
}

Ref Graph::select(Ref a, Ref b, const LanePattern& pattern) {
    if (a.isZero() || b.isZero()) throw std::logic_error("select takes no zero");
    if (a.negative() && b.negative()) return -select(-a, -b, pattern);
    matchPrecision(a, b);
    a = unsignedRef(a);
    b = unsignedRef(b);
    bool identity = true;
    for (int lane = 0; lane < lanes_; ++lane)
        identity =
            identity && (pattern[lane] == lane || (a == b && pattern[lane] == lane + lanes_));
    if (identity) return a;
    return intern({.op = Op::select, .a = a, .b = b, .pattern = pattern});
}

Ref Graph::flip(Ref a, const LanePattern& lanes) {
    LanePattern mask = lanes;
    if (a.negative())
        for (int& lane : mask) lane = 1 - lane;
    return intern({.op = Op::flip, .a = a.magnitude(), .pattern = mask});
}

Ref Graph::subtract(Ref a, const LanePattern& lanes) {
    LanePattern mask = lanes;
    if (a.negative())
        for (int& lane : mask) lane = 1 - lane;
    a = a.magnitude();
    const auto isSet = [](int lane) { return lane != 0; };
    if (std::ranges::none_of(mask, isSet)) return a;
    if (!arithmetic_.exactZeros && std::ranges::all_of(mask, isSet) && node(a).op == Op::sub)
        return intern({.op = Op::sub, .a = node(a).b, .b = node(a).a});
    return intern({.op = Op::subtract, .a = a, .pattern = mask});
}

std::vector<int> Graph::liveNodes() const {
    std::vector<char> needed(nodes_.size());
    for (const Output& output : outputs_) needed[output.node] = 1;
    for (int i = static_cast<int>(nodes_.size()) - 1; i >= 0; --i)
        for (const Ref operand : {nodes_[i].a, nodes_[i].b})
            if (needed[i] && !operand.isZero()) needed[operand.node()] = 1;
    std::vector<int> live;
    for (int i = 0; i < static_cast<int>(nodes_.size()); ++i)
        if (needed[i]) live.push_back(i);
    return live;
}

void Graph::store(int first, int second, Ref value, LanePattern negated) {
    negated.resize(lanes_, 0);
    if (value.negative())
        for (int& lane : negated) lane = 1 - lane;
    outputs_.push_back({elements(first, second), value.node(), negated});
}

// As many as a vector holds.
std::vector<int> Graph::elements(int first, int second) const {
    std::vector<int> result = {first, second};
    result.resize(lanes_ / lanesPerElement_, -1);
    return result;
}

Graph Graph::forPairsOf(const Graph& g) {
    Graph pairs(2 * g.lanes_, g.arithmetic_, g.lanesPerElement_);
    pairs.ofPairs_ = true;
    return pairs;
}

Ref Graph::append(Node node, const LaneConstant& constant) {
    if (!constant.empty()) node.constant = internConstant(constant);
    return intern(std::move(node));
}

void Graph::turnDifferences() {
    const LanePattern all(lanes_, 1);
    std::vector<char> turned(nodes_.size());
    for (const Output& output : outputs_) turned[output.node] = nodes_[output.node].op == Op::sub;
    for (const Output& output : outputs_)
        if (output.negated != all) turned[output.node] = false;
    for (const int node : liveNodes())
        for (const Ref operand : {nodes_[node].a, nodes_[node].b})
            if (!operand.isZero()) turned[operand.node()] = false;
    for (std::size_t node = 0; node < nodes_.size(); ++node)
        if (turned[node]) std::swap(nodes_[node].a, nodes_[node].b);
    for (Output& output : outputs_)
        if (turned[output.node]) output.negated.assign(lanes_, 0);
}

}   // namespace kfm::kernelgen
