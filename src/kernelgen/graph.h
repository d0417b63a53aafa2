// The expression graph: hash-consed vector operations over signed references.
//
// A node is one vector instruction on `lanes()` lanes. A reference is a node or its negation, or
// zero: negations and zeros never become nodes, so "hoisting" a sign is a matter of references.
// The constructors simplify as they build; the complete list of rewrites is in graph.cpp. None of
// them reassociates, so the bits of a result follow from the algorithm as written.
//
// In a graph of mixed precision a node is narrow (of the element type, single precision) or wide
// (double precision): products are wide, and so is a sum with a wide operand, until a rounding
// point makes it narrow again. Where the rounding points are is the algorithm's to say (settle) and
// the graph's to choose.
#pragma once

#include <cstdint>
#include <map>
#include <tuple>
#include <vector>

#include "kernelgen/constants.h"

namespace kfm::kernelgen {

class Ref {
public:
    constexpr Ref() = default;
    static constexpr Ref toNode(int node) { return Ref(node + 1); }

    bool isZero() const { return id_ == 0; }
    bool negative() const { return id_ < 0; }
    int node() const { return (id_ < 0 ? -id_ : id_) - 1; }
    Ref magnitude() const { return Ref(id_ < 0 ? -id_ : id_); }
    Ref operator-() const { return Ref(-id_); }
    friend auto operator<=>(Ref, Ref) = default;

private:
    explicit constexpr Ref(int id) : id_(id) {}
    int id_ = 0;   // 0: zero; +-(node + 1)
};

// The places of an algorithm at which a value may be rounded to the element type.
enum class Border : unsigned {
    rotation = 1,   // after the product by a twiddle factor
    module = 2,     // after an inner transform, and after the sums and differences it starts with
    result = 4,     // before the last sums of a kernel
};

constexpr unsigned operator|(Border a, Border b) { return unsigned(a) | unsigned(b); }

// How a graph computes.
struct Arithmetic {
    bool mixed = false;        // products are wide; else all nodes are of the element type
    unsigned rounding = 0;     // the borders at which wide values are rounded
    bool factoring = true;     // c*x + c*y = c*(x + y), c*(d*x) = (c*d)*x
    bool exactZeros = false;   // 0 - (a - b) stays, which is never a negative zero
    bool marking = false;      // keep rounding points of narrow values too, for transposition

    bool rounds(Border border) const { return (rounding & unsigned(border)) != 0; }
};

// One value per lane.
using LaneConstant = std::vector<Constant>;

// For each lane of a result the lane it is taken from: 0..L-1 of the first operand, L..2L-1 of
// the second; -1 for zero.
using LanePattern = std::vector<int>;

enum class Op {
    load,       // source elements; -1: zero
    add,        // a + b
    sub,        // a - b
    mul,        // constant * a
    select,     // lanes of a and b by `pattern`
    join,       // the half of a and the half of b that `pattern` names; -1: whatever
    flip,       // a with the sign changed in the lanes whose pattern entry is 1
    subtract,   // 0 - a in the lanes whose pattern entry is 1, a in the others
    widen,      // a narrow value made wide
    round,      // a wide value rounded to the element type
};

struct Node {
    Op op;
    Ref a = {}, b = {};               // always positive references (or unused)
    int constant = 0;                 // mul: index of the lane constant
    std::vector<int> elements = {};   // load: by number
    LanePattern pattern = {};
    bool half = false;    // in a graph of pairs: what the upper half holds is of no interest
    bool apart = false;   // load: by halves, even if they stand side by side
    bool move = false;    // brings operands together for a pair: no step of the algorithm
    bool wide = false;    // follows from the operation and its operands
};

// What a kernel writes: elements (-1: not stored) from a node, with the sign changed in the lanes
// whose entry is 1; a scale factor takes the signs along. Half as many elements: the lower half.
struct Output {
    std::vector<int> elements;
    int node;
    LanePattern negated;
};

// Nodes are numbered as they are made, and the schedules on record are for these numbers. So of the
// arguments of a call only one makes nodes: in which order they are evaluated is the compiler's
// choice.
class Graph {
public:
    // An element fills one lane, or several.
    explicit Graph(int lanes, Arithmetic arithmetic = {}, int lanesPerElement = 1)
        : lanes_(lanes), lanesPerElement_(lanesPerElement), arithmetic_(arithmetic) {}
    // An empty one for the pairs of `g`, on vectors of twice as many lanes.
    static Graph forPairsOf(const Graph& g);

    int lanes() const { return lanes_; }
    int lanesPerElement() const { return lanesPerElement_; }
    bool ofPairs() const { return ofPairs_; }
    const Arithmetic& arithmetic() const { return arithmetic_; }
    bool wide(Ref ref) const { return !ref.isZero() && node(ref).wide; }
    const std::vector<Node>& nodes() const { return nodes_; }
    const Node& node(Ref ref) const { return nodes_[ref.node()]; }
    const LaneConstant& constant(int index) const { return constants_[index]; }
    const std::vector<LaneConstant>& constants() const { return constants_; }

    Ref load(int first, int second = -1);
    Ref add(Ref a, Ref b);
    Ref sub(Ref a, Ref b) { return add(a, -b); }
    Ref mul(const Constant& c, Ref a) { return mul(LaneConstant(lanes_, c), a); }
    Ref mul(const LaneConstant& c, Ref a);
    Ref select(Ref a, Ref b, const LanePattern& pattern);
    Ref select(Ref a, const LanePattern& pattern) { return select(a, a, pattern); }
    Ref flip(Ref a, const LanePattern& lanes);
    // 0 - a in some lanes: unlike a change of sign it never makes a negative zero.
    Ref subtract(Ref a, const LanePattern& lanes);
    // A rounding point, if the graph rounds at this border.
    Ref settle(Ref a, Border border) { return arithmetic_.rounds(border) ? rounded(a) : a; }
    Ref rounded(Ref a);

    void store(int first, int second, Ref value, LanePattern negated = {});
    const std::vector<Output>& outputs() const { return outputs_; }

    // As they are, for a stage that has no sum to simplify.
    Ref append(Node node, const LaneConstant& constant = {});
    void append(Output output) { outputs_.push_back(std::move(output)); }

    // A difference that only goes out, and with the other sign, is taken the other way round: the
    // last step where no factor takes signs along.
    void turnDifferences();
    // The nodes that an output depends on, operands before their users.
    std::vector<int> liveNodes() const;

private:
    Ref difference(Ref a, Ref b);
    Ref commonFactor(Ref a, Ref b, bool negative);
    Ref unsignedRef(Ref a);
    Ref widened(Ref a);
    void matchPrecision(Ref& a, Ref& b);
    bool computesWide(const Node& node) const;
    bool sameFactor(Ref a, Ref b) const;
    int internConstant(const LaneConstant& c);
    std::vector<int> elements(int first, int second) const;
    Ref intern(Node node);

    using Key = std::tuple<Op, Ref, Ref, int, std::vector<int>, LanePattern, bool>;
    int lanes_, lanesPerElement_;
    bool ofPairs_ = false;
    Arithmetic arithmetic_;
    std::vector<Node> nodes_;
    std::map<Key, int> index_;
    std::vector<LaneConstant> constants_;
    std::map<LaneConstant, int> constantIndex_;
    std::vector<Output> outputs_;
};

}   // namespace kfm::kernelgen
