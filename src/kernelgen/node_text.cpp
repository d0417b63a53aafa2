#include "kernelgen/node_text.h"

#include <algorithm>

namespace kfm::kernelgen {

std::vector<ConstantTable> NodeText::tables(const Graph& g, const registry::Element& element,
                                            const Ports& ports) {
    const int lanes = g.lanes();
    const std::string access = lanes == 1 ? "lane" : ports.rowAccess();
    const bool wide = element.doublePrecision || lanes == 1;
    return {{"constants", element.doublePrecision, access, lanes, wide ? lanes : 4},
            {"wideConstants", true, access, lanes, lanes}};
}

std::string NodeText::scales(const std::vector<Output>& outputs) {
    std::string text;
    if (!ports_.scaled()) return text;
    for (const Output& output : outputs) {
        const Node& node = g_.nodes()[output.node];
        const bool plain = std::ranges::none_of(output.negated, [](int lane) { return lane; });
        std::string& name = scales_[{node.wide, output.negated}];
        if (!name.empty()) continue;
        name = plain && !node.wide ? "scale" : "scale" + std::to_string(scales_.size());
        if (name == "scale") continue;
        const std::string value = node.wide ? "widen(scale)" : "scale";
        text += "        const auto " + name + " = " +
                (plain ? value
                       : "flip(" + value + ", " + tableOf(node).zeros(output.negated) + ")") +
                ";\n";
    }
    return text;
}

std::string NodeText::expression(const Node& node, const std::string& a, const std::string& b) {
    switch (node.op) {
    case Op::load:
        return ports_.load(node);
    case Op::add:
        return "add(" + a + ", " + b + ")";
    case Op::sub:
        return "sub(" + a + ", " + b + ")";
    case Op::mul:
        return product(node, a);
    case Op::flip:
        return "flip(" + a + ", " + tableOf(node).zeros(node.pattern) + ")";
    case Op::select: {
        std::string lanes;
        for (const int lane : node.pattern)
            lanes += (lanes.empty() ? "" : ", ") + std::to_string(lane);
        return "select<" + lanes + ">(" + a + ", " + b + ")";
    }
    case Op::subtract:
        return subtracted(tableOf(node), node.pattern, a);
    case Op::widen:
        return "widen(" + a + ")";
    case Op::round:
        return "narrow(" + a + ")";
    }
    return {};
}

std::string NodeText::product(const Node& node, const std::string& a) {
    const LaneConstant& factor = g_.constant(node.constant);
    if (g_.arithmetic().mixed && !node.wide)   // doubling, the only narrow product there is
        return "add(" + a + ", " + a + ")";
    return "mul(" + a + ", " + tableOf(node).constant(factor) + ")";
}

// In the lanes that are kept -0.0 is added, which changes nothing.
std::string NodeText::subtracted(ConstantTable& table, const LanePattern& lanes,
                                 const std::string& a) {
    if (std::ranges::all_of(lanes, [](int lane) { return lane; }))
        return "subtractFromZero(" + a + ")";
    const std::string kept = table.zeros(lanes, 0);
    return "add(flip(" + a + ", " + table.zeros(lanes) + "), " + kept + ")";
}

std::string NodeText::outgoing(const std::string& value, const Signs& signs,
                               const std::map<Signs, std::string>& scales,
                               ConstantTable& table) const {
    if (ports_.scaled()) return "mul(" + value + ", " + scales.at(signs) + ")";
    if (std::ranges::count(signs.second, 1) == 0) return value;
    return "flip(" + value + ", " + table.zeros(signs.second) + ")";
}

std::string NodeText::store(const Output& output, const std::string& name) {
    const Node& node = g_.nodes()[output.node];
    const std::string value = outgoing(name, {node.wide, output.negated}, scales_, tableOf(node));
    return ports_.store(output, node.wide ? "narrow(" + value + ")" : value);
}

}   // namespace kfm::kernelgen
