// A node of a graph as an expression, and an output as a statement, in the operations of src/simd/.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "kernelgen/program.h"

namespace kfm::kernelgen {

class NodeText {
public:
    // `tables` begins with that of the element type and that of wide nodes, and outlives this.
    NodeText(const Graph& g, const registry::Element& element, Packed packed,
             std::vector<ConstantTable>& tables)
        : g_(g), packed_(packed), single_(!element.doublePrecision), complex_(element.complex),
          tables_(tables) {}

    static std::vector<ConstantTable> tables(const Graph& g, const registry::Element& element);

    std::string expression(const Node& node, const std::string& a, const std::string& b);
    std::string store(const Output& output, const std::string& value);
    // The scale factor in the precision and with the signs of these outputs, made once for each.
    std::string scales(const std::vector<Output>& outputs);

    // Numbers of elements in memory, after packing; of those -1 is none.
    std::string addresses(Packed side, std::initializer_list<int> elements) const;
    static std::string subtracted(ConstantTable& table, const LanePattern& lanes,
                                  const std::string& a);

private:
    ConstantTable& tableOf(const Node& node) { return tables_[node.wide]; }
    std::string product(const Node& node, const std::string& a);
    std::string address(Packed side, int element) const;   // after "src + " or "dst + "
    std::string load(const Node& node) const;
    bool wholeVector(int first, int second) const;

    const Graph& g_;
    Packed packed_;
    bool single_, complex_;
    std::vector<ConstantTable>& tables_;
    std::map<std::pair<bool, LanePattern>, std::string> scales_;
};

}   // namespace kfm::kernelgen
