#include "kernelgen/array_ports.h"

namespace kfm::kernelgen {
namespace {

// An aligned vector of two neighbours starts at an even element.
bool fillsVector(const std::vector<int>& elements) {
    return elements[0] % 2 == 0 && elements[1] == elements[0] + 1;
}

}   // namespace

std::string ArrayPorts::address(Packed side, int element) const {
    const std::string index = std::to_string(element);
    return packed_ == side ? "Memory::at(" + index + ")" : index;
}

// After packing; -1 is none.
std::string ArrayPorts::addresses(Packed side, const std::vector<int>& elements) const {
    std::string result;
    for (const int element : elements)
        result += (result.empty() ? "" : ", ") + (element < 0 ? "-1" : address(side, element));
    return result;
}

std::string ArrayPorts::load(const std::vector<int>& elements, bool apart) const {
    const auto at = [&](int which) { return "src + " + address(Packed::source, elements[which]); };
    const std::string all = "<" + addresses(Packed::source, elements) + ">(src)";
    if (elements.size() == 4) return (apart ? "loadFourApart" : "loadFour") + all;
    if (elements.size() == 1)
        return (!complex_ ? "load(" : single_ ? "loadLow(" : "Memory::load(") + at(0) + ")";
    if (!complex_) return "loadPair" + all;
    if (!single_) return (apart ? "loadTwoApart" : "loadTwo") + all;
    if (elements[1] < 0) return "loadLow(" + at(0) + ")";
    if (!apart && fillsVector(elements)) return "Memory::loadPair(" + at(0) + ")";
    return "loadHalves(" + at(0) + ", " + at(1) + ")";
}

std::string ArrayPorts::store(const std::vector<int>& elements, const std::string& value) const {
    const auto at = [&](int which) {
        return "dst + " + address(Packed::destination, elements[which]);
    };
    const auto all = [&](const std::string& name) {
        return name + "<" + addresses(Packed::destination, elements) + ">(dst, " + value + ");\n";
    };
    const auto call = [&](const std::string& name, const std::string& where) {
        return name + "(" + where + ", " + value + ");\n";
    };
    if (elements.size() == 4) return all("storeFour");
    if (elements.size() == 1)
        return call(!complex_ || single_ ? "storeLow" : "Memory::store", at(0));
    if (!complex_) return all("storePair");
    if (!single_) return all("storeTwo");
    if (elements[1] < 0) return call("storeLow", at(0));
    if (fillsVector(elements)) return call("Memory::storePair", at(0));
    return call("storeHalves", at(0) + ", " + at(1));
}

}   // namespace kfm::kernelgen
