// A kernel as a list of vector operations, of whatever width: what is scheduled and printed. Texts
// are made when they are printed, so that constants stand in the order of their use.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "kernelgen/constant_table.h"
#include "kernelgen/graph.h"
#include "kernelgen/pairing.h"
#include "kernelgen/ports.h"
#include "kernelgen/report.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

struct Operation {
    std::string name;
    std::vector<int> operands;   // operations by number, all smaller than its own
    Op op;
    bool paired = false;             // works on both halves
    std::vector<int> outputs = {};   // what is stored from it, by number

    bool isSum() const { return op == Op::add || op == Op::sub; }
    bool isLoad() const { return op == Op::load; }
};

class Program {
public:
    // An operation for each live node.
    Program(Graph g, const registry::Element& element, const Ports& ports);

    const std::vector<Operation>& operations() const { return operations_; }
    const std::vector<ConstantTable>& tables() const { return tables_; }

    // What an operation computes, as an expression of the names of its operands.
    std::string expression(int operation);
    // The statement that stores an output.
    std::string store(int number);
    // Scale factors in other precisions and with other signs than `scale`, made once; empty where
    // nothing is scaled.
    std::string scales();

    std::vector<std::vector<int>> operands() const;   // of all operations
    OperationCounts counts() const;

private:
    // How a factor differs from `scale`: for wide nodes, for both halves, and with which signs.
    using Signs = std::tuple<bool, bool, LanePattern>;

    const Node& node(int number) const { return g_.nodes()[number]; }
    bool inHalf(const Output& output) const;
    // Whether both halves of a value are in a vector that its user takes for one half.
    bool sharesVector(const Node& node) const;
    ConstantTable& table(const Node& node);
    std::string operand(const Node& user, Ref ref) const;
    std::string product(const Node& node, const std::string& a);
    std::string subtracted(const Node& node, const std::string& a);
    // With other signs in some lanes, as a value that is wide and a half or not, like this node.
    std::string flipped(const Node& like, const std::string& a, const LanePattern& lanes);
    std::string selected(const Node& node, const std::string& a, const std::string& b) const;
    Signs signsOf(const Output& output) const;
    std::string scaleValue(const Signs& signs);

    const Graph g_;
    const Ports& ports_;
    const bool doublePrecision_;
    std::vector<int> nodes_;   // by operation
    std::vector<Operation> operations_;
    std::vector<ConstantTable> tables_;
    std::map<Signs, std::string> scales_;
};

// As often as a choice says with operations joined in pairs. A graph of one lane fills no vector
// that could be half of another.
Program program(Graph g, const registry::Element& element, const Ports& ports,
                const std::vector<PairingChoice>& pairings);

}   // namespace kfm::kernelgen
