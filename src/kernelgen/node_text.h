// A node of a graph as an expression, and an output as a statement, in the operations of src/simd/.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "kernelgen/program.h"

namespace kfm::kernelgen {

// Of the lanes of a value, in the precision of wide nodes or not: which change their signs.
using Signs = std::pair<bool, LanePattern>;

class NodeText {
public:
    // `tables` begins with that of the element type and that of wide nodes, and outlives this.
    NodeText(const Graph& g, const Ports& ports, std::vector<ConstantTable>& tables)
        : g_(g), ports_(ports), tables_(tables) {}

    static std::vector<ConstantTable> tables(const Graph& g, const registry::Element& element,
                                             const Ports& ports);

    std::string expression(const Node& node, const std::string& a, const std::string& b);
    std::string store(const Output& output, const std::string& value);
    // The scale factor in the precision and with the signs of these outputs, made once for each.
    std::string scales(const std::vector<Output>& outputs);

    // With the factor named for these signs or, where nothing is scaled, the signs themselves.
    std::string outgoing(const std::string& value, const Signs& signs,
                         const std::map<Signs, std::string>& scales, ConstantTable& table) const;
    static std::string subtracted(ConstantTable& table, const LanePattern& lanes,
                                  const std::string& a);

private:
    ConstantTable& tableOf(const Node& node) { return tables_[node.wide]; }
    std::string product(const Node& node, const std::string& a);

    const Graph& g_;
    const Ports& ports_;
    std::vector<ConstantTable>& tables_;
    std::map<Signs, std::string> scales_;
};

}   // namespace kfm::kernelgen
