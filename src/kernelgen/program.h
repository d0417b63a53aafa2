// A kernel as a list of vector operations, of whatever width: what is scheduled and printed. Texts
// are made when they are printed, so that constants stand in the order of their use.
#pragma once

#include <memory>
#include <optional>
#include <string>
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
    std::optional<Op> op = {};       // none: a move between halves
    bool paired = false;             // works on both halves
    std::vector<int> outputs = {};   // what is stored from it, by number

    bool isSum() const { return op == Op::add || op == Op::sub; }
    bool isLoad() const { return op == Op::load; }
};

class Program {
public:
    virtual ~Program() = default;

    const std::vector<Operation>& operations() const { return operations_; }
    const std::vector<ConstantTable>& tables() const { return tables_; }

    // What an operation computes, as an expression of the names of its operands.
    virtual std::string expression(int operation) = 0;
    // The statement that stores an output.
    virtual std::string store(int output) = 0;
    // Scale factors in other precisions and with other signs than `scale`, made once; empty where
    // nothing is scaled.
    virtual std::string scales() = 0;

    std::vector<std::vector<int>> operands() const;   // of all operations
    OperationCounts counts() const;

protected:
    std::vector<Operation> operations_;
    std::vector<ConstantTable> tables_;
};

// An operation for each live node of a graph.
std::unique_ptr<Program> narrowProgram(const Graph& g, const registry::Element& element,
                                       const Ports& ports);
// An operation for each pair of nodes, and for what is left alone.
std::unique_ptr<Program> wideProgram(const Graph& g, const registry::Element& element,
                                     const Ports& ports, Pairing pairing);
// The one that a choice asks for. A graph of one lane fills no vector that could be half of
// another.
std::unique_ptr<Program> program(const Graph& g, const registry::Element& element,
                                 const Ports& ports, const std::optional<PairingChoice>& choice);

}   // namespace kfm::kernelgen
