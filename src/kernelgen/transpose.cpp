#include "kernelgen/transpose.h"

#include <stdexcept>

namespace kfm::kernelgen {
namespace {

// A balanced tree keeps the chains short.
Ref balancedSum(Graph& g, std::span<const Ref> terms) {
    if (terms.empty()) return {};
    if (terms.size() == 1) return terms[0];
    const std::size_t half = terms.size() / 2;
    return g.add(balancedSum(g, terms.first(half)), balancedSum(g, terms.subspan(half)));
}

}   // namespace

std::vector<Ref> transposed(const Graph& network, std::span<const Ref> inputs,
                            std::span<const WeightedOutput> outputs, Graph& target) {
    std::vector<std::vector<Ref>> terms(network.nodes().size());
    const auto contribute = [&](Ref to, Ref value) {
        if (!value.isZero()) terms[to.node()].push_back(to.negative() ? -value : value);
    };
    for (const auto& [output, value] : outputs)
        if (!output.isZero()) contribute(output, value);

    std::vector<Ref> sums(network.nodes().size());
    for (int i = static_cast<int>(network.nodes().size()) - 1; i >= 0; --i) {
        const Node& node = network.nodes()[i];
        const Ref sum = sums[i] = balancedSum(target, terms[i]);
        switch (node.op) {
        case Op::load:
            break;
        case Op::add:
            contribute(node.a, sum);
            contribute(node.b, sum);
            break;
        case Op::sub:
            contribute(node.a, sum);
            contribute(node.b, -sum);
            break;
        case Op::mul:
            contribute(node.a, target.mul(network.constant(node.constant), sum));
            break;
        default:
            throw std::logic_error("only sums and products can be transposed");
        }
    }
    std::vector<Ref> result;
    for (const Ref input : inputs) result.push_back(sums[input.node()]);
    return result;
}

}   // namespace kfm::kernelgen
