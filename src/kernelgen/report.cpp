#include "kernelgen/report.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace kfm::kernelgen {
namespace {

std::string operand(Ref ref) { return (ref.negative() ? "-t" : "t") + std::to_string(ref.node()); }

// Without what is none at the end.
std::string list(std::vector<int> numbers) {
    while (!numbers.empty() && numbers.back() < 0) numbers.pop_back();
    return listOf(numbers);
}

std::string label(const Graph& g, const Node& node) {
    std::ostringstream out;
    switch (node.op) {
    case Op::load: out << "load " << list(node.elements); break;
    case Op::add: out << operand(node.a) << " + " << operand(node.b); break;
    case Op::sub: out << operand(node.a) << " - " << operand(node.b); break;
    case Op::mul:
        out << operand(node.a) << " *";
        for (const Constant& lane : g.constant(node.constant)) out << ' ' << lane.asDecimal();
        break;
    case Op::select:
    case Op::flip:
        out << (node.op == Op::flip ? "flip " : "select ") << operand(node.a);
        if (node.op == Op::select && node.b != node.a) out << ", " << operand(node.b);
        out << " by";
        for (const int lane : node.pattern) out << ' ' << lane;
        break;
    case Op::subtract:
        out << "0 - " << operand(node.a) << " in lanes";
        for (const int lane : node.pattern) out << ' ' << lane;
        break;
    case Op::join:
        out << "halves " << list(node.pattern) << " of " << operand(node.a);
        if (!node.b.isZero()) out << ", " << operand(node.b);
        break;
    case Op::widen:
    case Op::round: out << (node.op == Op::widen ? "widen " : "round ") << operand(node.a); break;
    }
    return out.str();
}

}   // namespace

std::string listOf(const std::vector<int>& numbers) {
    std::string text;
    for (const int number : numbers) text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text;
}

void OperationCounts::add(Op op) {
    switch (op) {
    case Op::load: ++loads; break;
    case Op::add:
    case Op::sub:
    case Op::subtract: ++additions; break;
    case Op::mul: ++multiplications; break;
    case Op::select: ++shuffles; break;
    case Op::join: ++moves; break;
    case Op::flip: ++signChanges; break;
    case Op::widen:
    case Op::round: ++conversions; break;
    }
}

OperationCounts countOperations(const Graph& g) {
    OperationCounts counts;
    for (const int index : g.liveNodes()) counts.add(g.nodes()[index].op);
    counts.stores = static_cast<int>(g.outputs().size());
    return counts;
}

namespace {

// The lanes of each node that an output depends on.
std::vector<std::vector<char>> neededLanes(const Graph& g) {
    std::vector<std::vector<char>> needed(g.nodes().size(), std::vector<char>(g.lanes()));
    for (const Output& output : g.outputs()) {
        for (int lane = 0; lane < g.lanes(); ++lane)
            if (output.elements[lane / g.lanesPerElement()] >= 0) needed[output.node][lane] = 1;
    }
    for (int i = static_cast<int>(g.nodes().size()) - 1; i >= 0; --i) {
        const Node& node = g.nodes()[i];
        for (int lane = 0; lane < g.lanes(); ++lane) {
            if (!needed[i][lane]) continue;
            const int from = node.op == Op::select ? node.pattern[lane] : lane;
            if (node.op == Op::select && from < 0) continue;
            const bool second = node.op == Op::select && from >= g.lanes();
            if (!node.a.isZero() && !second) needed[node.a.node()][from] = 1;
            if (!node.b.isZero() && (second || node.op != Op::select))
                needed[node.b.node()][from % g.lanes()] = 1;
        }
    }
    return needed;
}

}   // namespace

int countScalarProducts(const Graph& g) {
    const auto needed = neededLanes(g);
    int products = 0;
    for (std::size_t i = 0; i < g.nodes().size(); ++i) {
        const Node& node = g.nodes()[i];
        if (node.op != Op::mul) continue;
        for (int lane = 0; lane < g.lanes(); ++lane)
            if (needed[i][lane] && !(g.constant(node.constant)[lane] == Constant(2))) ++products;
    }
    return products;
}

int countReloads(const std::vector<std::vector<int>>& operands, const std::vector<int>& order,
                 int registers) {
    std::vector<std::vector<int>> uses(operands.size());   // positions, the next one last
    for (int at = static_cast<int>(order.size()) - 1; at >= 0; --at)
        for (const int operand : operands[order[at]]) uses[operand].push_back(at);
    std::set<int> held;
    int reloads = 0;
    const auto hold = [&](int value) {
        held.insert(value);
        if (static_cast<int>(held.size()) <= registers) return;
        held.erase(*std::ranges::max_element(held, {}, [&](int other) {
            return other == value ? -1 : uses[other].back();
        }));
    };
    for (const int index : order) {
        for (const int operand : operands[index])
            if (!held.contains(operand)) ++reloads, hold(operand);
        for (const int operand : operands[index]) {
            uses[operand].pop_back();
            if (uses[operand].empty()) held.erase(operand);
        }
        if (!uses[index].empty()) hold(index);
    }
    return reloads;
}

std::string dumpText(const Graph& g, const std::vector<int>& order) {
    std::ostringstream out;
    for (const int index : order)
        out << 't' << index << " = " << label(g, g.nodes()[index]) << '\n';
    for (const Output& output : g.outputs()) {
        out << "store " << list(output.elements) << " = t" << output.node << " signs";
        for (const int lane : output.negated) out << (lane ? " -" : " +");
        out << '\n';
    }
    return out.str();
}

std::string dumpDot(const Graph& g, const std::vector<int>& order) {
    std::ostringstream out;
    out << "digraph kernel {\n";
    for (const int index : order) {
        const Node& node = g.nodes()[index];
        out << "  t" << index << " [label=\"" << label(g, node) << "\"];\n";
        for (const Ref from : {node.a, node.b})
            if (!from.isZero()) out << "  t" << from.node() << " -> t" << index << ";\n";
    }
    out << "}\n";
    return out.str();
}

}   // namespace kfm::kernelgen
