#include "kernelgen/node_text.h"

#include <algorithm>

namespace kfm::kernelgen {

std::vector<ConstantTable> NodeText::tables(const Graph& g, const registry::Element& element) {
    const int lanes = g.lanes();
    const std::string access = lanes == 1 ? "lane" : "constant";
    const bool wide = element.doublePrecision || lanes == 1;
    return {{"constants", element.doublePrecision, access, lanes, wide ? lanes : 4},
            {"wideConstants", true, access, lanes, lanes}};
}

std::string NodeText::scales(const std::vector<Output>& outputs) {
    std::string text;
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
        return load(node);
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

std::string NodeText::address(Packed side, int element) const {
    const std::string index = std::to_string(element);
    return packed_ == side ? "Memory::at(" + index + ")" : index;
}

std::string NodeText::addresses(Packed side, std::initializer_list<int> elements) const {
    std::string result;
    for (const int element : elements)
        result += (result.empty() ? "" : ", ") + (element < 0 ? "-1" : address(side, element));
    return result;
}

std::string NodeText::load(const Node& node) const {
    const std::string first = "src + " + address(Packed::source, node.first);
    const std::string second = "src + " + address(Packed::source, node.second);
    if (complex_ && !single_) return "Memory::load(" + first + ")";
    if (g_.lanes() == 1) return "load(" + first + ")";
    if (!complex_)
        return "loadPair<" + addresses(Packed::source, {node.first, node.second}) + ">(src)";
    if (node.second < 0) return "loadLow(" + first + ")";
    if (wholeVector(node.first, node.second)) return "Memory::loadPair(" + first + ")";
    return "loadHalves(" + first + ", " + second + ")";
}

// An aligned vector of two neighbours starts at an even element.
bool NodeText::wholeVector(int first, int second) const {
    return first % 2 == 0 && second == first + 1;
}

std::string NodeText::store(const Output& output, const std::string& name) {
    const bool wide = g_.nodes()[output.node].wide;
    const std::string first = "dst + " + address(Packed::destination, output.first);
    const std::string second = "dst + " + address(Packed::destination, output.second);
    const std::string product = "mul(" + name + ", " + scales_.at({wide, output.negated}) + ")";
    const std::string value = wide ? "narrow(" + product + ")" : product;
    std::string call;
    if (complex_ && !single_) call = "Memory::store(" + first;
    else if (!complex_ && g_.lanes() == 2)
        call = "storePair<" + addresses(Packed::destination, {output.first, output.second}) + ">(dst";
    else if (output.second < 0) call = "storeLow(" + first;
    else if (wholeVector(output.first, output.second)) call = "Memory::storePair(" + first;
    else call = "storeHalves(" + first + ", " + second;
    return call + ", " + value + ");\n";
}

}   // namespace kfm::kernelgen
