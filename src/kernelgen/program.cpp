#include "kernelgen/program.h"

#include <algorithm>

#include "kernelgen/joined_graph.h"

namespace kfm::kernelgen {
namespace {

std::string name(int node) { return "t" + std::to_string(node); }

bool anySet(const LanePattern& lanes) {
    return std::ranges::any_of(lanes, [](int lane) { return lane != 0; });
}

// Those of a value that is a half, or all.
template <class T>
std::vector<T> lanesOf(std::vector<T> lanes, bool half) {
    if (half) lanes.resize(lanes.size() / 2);
    return lanes;
}

}   // namespace

Program::Program(Graph g, const registry::Element& element, const Ports& ports)
    : g_(std::move(g)), ports_(ports), doublePrecision_(element.doublePrecision),
      nodes_(g_.liveNodes()) {
    const bool wide = doublePrecision_;
    const int whole = g_.lanes(), part = g_.ofPairs() ? whole / 2 : whole;
    const std::string access = whole == 1 ? "lane" : ports.rowAccess();
    tables_ = {{"constants", wide, access, part, wide || part == 1 ? part : 4},
               {"wideConstants", true, access, part, part},
               {"pairedConstants", wide, wide || whole > 4 ? "constantHalves" : "constant", whole,
                whole},
               {"quadruples", true, "constantHalves", whole, whole}};
    std::map<int, int> operationOf;
    for (const int number : nodes_) {
        const Node& what = node(number);
        operationOf[number] = static_cast<int>(operations_.size());
        Operation operation{name(number), {}, what.op};
        operation.paired = g_.ofPairs() && !what.half && what.op != Op::join;
        for (const Ref from : {what.a, what.b == what.a ? Ref() : what.b})
            if (!from.isZero()) operation.operands.push_back(operationOf.at(from.node()));
        operations_.push_back(std::move(operation));
    }
    for (std::size_t i = 0; i < g_.outputs().size(); ++i)
        operations_[operationOf.at(g_.outputs()[i].node)].outputs.push_back(static_cast<int>(i));
}

bool Program::inHalf(const Output& output) const {
    return static_cast<int>(output.elements.size()) * g_.lanesPerElement() < g_.lanes();
}

bool Program::sharesVector(const Node& node) const {
    return !doublePrecision_ && !node.wide && g_.lanes() == 4;
}

ConstantTable& Program::table(const Node& node) {
    return tables_[node.wide + (g_.ofPairs() && !node.half ? 2 : 0)];
}

std::string Program::operand(const Node& user, Ref ref) const {
    if (ref.isZero()) return "";
    const Node& from = node(ref.node());
    const std::string value = name(ref.node());
    if (user.op == Op::join)
        return from.half && !sharesVector(from) ? "asLower(" + value + ")" : value;
    return user.half && !from.half ? "lower(" + value + ")" : value;
}

std::string Program::expression(int operation) {
    const Node& what = node(nodes_[operation]);
    const std::string a = operand(what, what.a), b = operand(what, what.b);
    const bool paired = operations_[operation].paired;
    switch (what.op) {
    case Op::load: return ports_.load(what.elements, what.apart);
    case Op::add: return "add(" + a + ", " + b + ")";
    case Op::sub: return "sub(" + a + ", " + b + ")";
    case Op::mul: return product(what, a);
    case Op::flip: return flipped(what, a, lanesOf(what.pattern, what.half));
    case Op::select: return selected(what, a, b);
    case Op::subtract: return subtracted(what, a);
    case Op::join:
        return what.half ? "upper(" + a + ")"
                         : "join<" + listOf(what.pattern) + ">(" + a + ", " + b + ")";
    case Op::widen: return (paired ? "widenHalves(" : "widen(") + a + ")";
    case Op::round: return "narrow(" + a + ")";
    }
    return {};
}

std::string Program::product(const Node& node, const std::string& a) {
    if (g_.arithmetic().mixed && !node.wide)   // doubling, the only narrow product there is
        return "add(" + a + ", " + a + ")";
    return "mul(" + a + ", " +
           table(node).constant(lanesOf(g_.constant(node.constant), node.half)) + ")";
}

// In the lanes that are kept -0.0 is added, which changes nothing.
std::string Program::subtracted(const Node& node, const std::string& a) {
    const LanePattern lanes = lanesOf(node.pattern, node.half);
    if (std::ranges::all_of(lanes, [](int lane) { return lane; }))
        return "subtractFromZero(" + a + ")";
    const std::string kept = table(node).zeros(lanes, 0);
    return "add(" + flipped(node, a, lanes) + ", " + kept + ")";
}

std::string Program::flipped(const Node& like, const std::string& a, const LanePattern& lanes) {
    return "flip(" + a + ", " + table(like).zeros(lanes) + ")";
}

// Halves of two lanes have a selector each, those of four share one.
std::string Program::selected(const Node& node, const std::string& a, const std::string& b) const {
    const int whole = g_.lanes(), part = whole / 2;
    const bool paired = g_.ofPairs() && !node.half;
    LanePattern lanes = lanesOf(node.pattern, node.half || (paired && part > 2));
    for (int& lane : lanes) {
        if (lane < 0 || !g_.ofPairs()) continue;
        const bool ofB = lane >= whole && !(paired && part == 2);
        lane = lane % part + (ofB ? part : 0);
    }
    if (paired && (b.empty() || a == b)) return "selectHalves<" + listOf(lanes) + ">(" + a + ")";
    return (paired ? "selectHalves<" : "select<") + listOf(lanes) + ">(" + a + ", " +
           (b.empty() ? a : b) + ")";
}

Program::Signs Program::signsOf(const Output& output) const {
    return {node(output.node).wide, inHalf(output), lanesOf(output.negated, inHalf(output))};
}

std::string Program::scaleValue(const Signs& signs) {
    const auto& [wide, half, negated] = signs;
    const Node like = {.op = Op::flip, .half = half, .wide = wide};
    std::string value = wide ? "widen(scale)" : "scale";
    if (g_.ofPairs() && !half && !sharesVector(like)) value = "twice(" + value + ")";
    return anySet(negated) ? flipped(like, value, negated) : value;
}

std::string Program::scales() {
    std::string text;
    if (!ports_.scaled()) return text;
    for (const Output& output : g_.outputs()) {
        const auto [entry, added] = scales_.try_emplace(signsOf(output));
        if (!added) continue;
        const std::string value = scaleValue(entry->first);
        entry->second = value == "scale" ? value : "scale" + std::to_string(scales_.size());
        if (value != "scale") text += "        const auto " + entry->second + " = " + value + ";\n";
    }
    return text;
}

// With the factor or, where there is none, the signs that it would bring along.
std::string Program::store(int number) {
    const Output& output = g_.outputs()[number];
    const Node& from = node(output.node);
    const Node like = {.op = Op::flip, .half = inHalf(output), .wide = from.wide};
    const Signs signs = signsOf(output);
    std::string value = operand(like, Ref::toNode(output.node));
    if (ports_.scaled()) value = "mul(" + value + ", " + scales_.at(signs) + ")";
    else if (anySet(output.negated)) value = flipped(like, value, std::get<LanePattern>(signs));
    return ports_.store(output.elements, from.wide ? "narrow(" + value + ")" : value);
}

std::vector<std::vector<int>> Program::operands() const {
    std::vector<std::vector<int>> result;
    for (const Operation& operation : operations_) result.push_back(operation.operands);
    return result;
}

OperationCounts Program::counts() const {
    OperationCounts counts;
    for (const Operation& operation : operations_) {
        counts.add(operation.op);
        counts.pairs += operation.paired;
        counts.stores += static_cast<int>(operation.outputs.size());
    }
    return counts;
}

Program program(Graph g, const registry::Element& element, const Ports& ports,
                const std::vector<PairingChoice>& pairings) {
    for (const PairingChoice& choice : pairings)
        if (g.lanes() > 1) g = joinedGraph(g, pairOperations(g, choice));
    return Program(std::move(g), element, ports);
}

}   // namespace kfm::kernelgen
