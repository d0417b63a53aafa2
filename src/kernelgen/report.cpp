#include "kernelgen/report.h"

#include <sstream>

#include "kernelgen/schedule.h"

namespace kfm::kernelgen {
namespace {

std::string operand(Ref ref) { return (ref.negative() ? "-t" : "t") + std::to_string(ref.node()); }

std::string label(const Graph& g, const Node& node) {
    std::ostringstream out;
    switch (node.op) {
    case Op::load:
        out << "load " << node.first;
        if (node.second >= 0) out << ", " << node.second;
        break;
    case Op::add:
        out << operand(node.a) << " + " << operand(node.b);
        break;
    case Op::sub:
        out << operand(node.a) << " - " << operand(node.b);
        break;
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
    }
    return out.str();
}

}   // namespace

OperationCounts countOperations(const Graph& g) {
    OperationCounts counts;
    for (const int index : schedule(g, {})) {
        switch (g.nodes()[index].op) {
        case Op::load:
            ++counts.loads;
            break;
        case Op::add:
        case Op::sub:
            ++counts.additions;
            break;
        case Op::mul:
            ++counts.multiplications;
            break;
        case Op::select:
            ++counts.shuffles;
            break;
        case Op::flip:
            ++counts.signChanges;
            break;
        }
    }
    counts.stores = static_cast<int>(g.outputs().size());
    return counts;
}

std::string dumpText(const Graph& g, const std::vector<int>& order) {
    std::ostringstream out;
    for (const int index : order) out << 't' << index << " = " << label(g, g.nodes()[index]) << '\n';
    for (const Output& output : g.outputs()) {
        out << "store " << output.first;
        if (output.second >= 0) out << ", " << output.second;
        out << " = t" << output.node << " signs";
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
