#include "kernelgen/program.h"

namespace kfm::kernelgen {

std::vector<std::vector<int>> Program::operands() const {
    std::vector<std::vector<int>> result;
    for (const Operation& operation : operations_) result.push_back(operation.operands);
    return result;
}

OperationCounts Program::counts() const {
    OperationCounts counts;
    for (const Operation& operation : operations_) {
        if (operation.op) counts.add(*operation.op);
        else ++counts.moves;
        counts.pairs += operation.paired;
        counts.stores += static_cast<int>(operation.outputs.size());
    }
    return counts;
}

std::unique_ptr<Program> program(const Graph& g, const registry::Element& element,
                                 const Ports& ports, const std::optional<PairingChoice>& choice) {
    if (!choice || g.lanes() == 1) return narrowProgram(g, element, ports);
    return wideProgram(g, element, ports, pairOperations(g, *choice));
}

}   // namespace kfm::kernelgen
