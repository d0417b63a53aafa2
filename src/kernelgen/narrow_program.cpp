// One operation for each live node, under its number.
#include <map>

#include "kernelgen/node_text.h"

namespace kfm::kernelgen {
namespace {

class NarrowProgram : public Program {
public:
    NarrowProgram(const Graph& g, const registry::Element& element, const Ports& ports)
        : g_(g), nodes_(g.liveNodes()), text_(g, ports, tables_) {
        tables_ = NodeText::tables(g, element, ports);
        std::map<int, int> operationOf;
        for (const int number : nodes_) {
            const Node& node = g.nodes()[number];
            operationOf[number] = static_cast<int>(operations_.size());
            Operation operation{name(number), {}, node.op};
            for (const Ref operand : {node.a, node.b == node.a ? Ref() : node.b})
                if (!operand.isZero()) operation.operands.push_back(operationOf.at(operand.node()));
            operations_.push_back(std::move(operation));
        }
        for (std::size_t i = 0; i < g.outputs().size(); ++i)
            operations_[operationOf.at(g.outputs()[i].node)].outputs.push_back(static_cast<int>(i));
    }

    std::string expression(int operation) override {
        const Node& node = g_.nodes()[nodes_[operation]];
        return text_.expression(node, name(node.a.node()), name(node.b.node()));
    }
    std::string store(int output) override {
        return text_.store(g_.outputs()[output], name(g_.outputs()[output].node));
    }
    std::string scales() override { return text_.scales(g_.outputs()); }

private:
    static std::string name(int node) { return "t" + std::to_string(node); }

    const Graph& g_;
    std::vector<int> nodes_;
    NodeText text_;
};

}   // namespace

std::unique_ptr<Program> narrowProgram(const Graph& g, const registry::Element& element,
                                       const Ports& ports) {
    return std::make_unique<NarrowProgram>(g, element, ports);
}

}   // namespace kfm::kernelgen
