#include "kernelgen/array_ports.h"

namespace kfm::kernelgen {

std::string ArrayPorts::address(Packed side, int element) const {
    const std::string index = std::to_string(element);
    return packed_ == side ? "Memory::at(" + index + ")" : index;
}

// After packing; -1 is none.
std::string ArrayPorts::addresses(Packed side, std::initializer_list<int> elements) const {
    std::string result;
    for (const int element : elements)
        result += (result.empty() ? "" : ", ") + (element < 0 ? "-1" : address(side, element));
    return result;
}

template <class Access>
std::string ArrayPorts::addresses(Packed side, const Access& low, const Access& high) const {
    if (wholeElements()) return addresses(side, {low.first, high.first});
    return addresses(side, {low.first, low.second, high.first, high.second});
}

// An aligned vector of two neighbours starts at an even element.
bool ArrayPorts::wholeVector(int first, int second) const {
    return first % 2 == 0 && second == first + 1;
}

std::string ArrayPorts::load(const Node& node) const {
    const std::string first = "src + " + address(Packed::source, node.first);
    const std::string second = "src + " + address(Packed::source, node.second);
    if (wholeElements()) return "Memory::load(" + first + ")";
    if (lanes_ == 1) return "load(" + first + ")";
    if (!complex_)
        return "loadPair<" + addresses(Packed::source, {node.first, node.second}) + ">(src)";
    if (node.second < 0) return "loadLow(" + first + ")";
    if (wholeVector(node.first, node.second)) return "Memory::loadPair(" + first + ")";
    return "loadHalves(" + first + ", " + second + ")";
}

std::string ArrayPorts::load(const Node& low, const Node& high, bool apart) const {
    return std::string(wholeElements() ? "loadTwo" : "loadFour") + (apart ? "Apart<" : "<") +
           addresses(Packed::source, low, high) + ">(src)";
}

std::string ArrayPorts::store(const Output& output, const std::string& value) const {
    const std::string first = "dst + " + address(Packed::destination, output.first);
    const std::string second = "dst + " + address(Packed::destination, output.second);
    const std::string both = addresses(Packed::destination, {output.first, output.second});
    std::string call;
    if (wholeElements()) call = "Memory::store(" + first;
    else if (!complex_ && lanes_ == 2) call = "storePair<" + both + ">(dst";
    else if (output.second < 0) call = "storeLow(" + first;
    else if (wholeVector(output.first, output.second)) call = "Memory::storePair(" + first;
    else call = "storeHalves(" + first + ", " + second;
    return call + ", " + value + ");\n";
}

std::string ArrayPorts::store(const Output& low, const Output& high,
                              const std::string& value) const {
    return (wholeElements() ? "storeTwo<" : "storeFour<") +
           addresses(Packed::destination, low, high) + ">(dst, " + value + ");\n";
}

}   // namespace kfm::kernelgen
