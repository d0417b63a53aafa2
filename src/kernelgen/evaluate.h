// Evaluates a kernel's graph lane by lane in any number type: the algorithm can be checked before
// a line is emitted, and the emitted kernel must give the bits of the element-type evaluation.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

// `source` holds the input as a flat array of lanes: element e of a load is the
// `lanesPerElement` values from e * lanesPerElement; an output element is laid out alike.
template <class Real>
std::vector<Real> evaluate(const Graph& g, int lanesPerElement, std::span<const Real> source) {
    using Lanes = std::vector<Real>;
    const int lanes = g.lanes();
    std::vector<Lanes> values;
    const auto at = [&](Ref ref) -> const Lanes& { return values[ref.node()]; };
    for (const Node& node : g.nodes()) {
        Lanes v(lanes);
        for (int i = 0; i < lanes; ++i) {
            switch (node.op) {
            case Op::load: {
                const int element = i < lanesPerElement ? node.first : node.second;
                v[i] = element < 0 ? Real(0)
                                   : source[element * lanesPerElement + i % lanesPerElement];
                break;
            }
            case Op::add:
                v[i] = at(node.a)[i] + at(node.b)[i];
                break;
            case Op::sub:
                v[i] = at(node.a)[i] - at(node.b)[i];
                break;
            case Op::mul:
                v[i] = static_cast<Real>(g.constant(node.constant)[i].value()) * at(node.a)[i];
                break;
            case Op::select:
                v[i] = node.pattern[i] < lanes ? at(node.a)[node.pattern[i]]
                                               : at(node.b)[node.pattern[i] - lanes];
                break;
            case Op::flip:
                v[i] = node.pattern[i] ? -at(node.a)[i] : at(node.a)[i];
                break;
            }
        }
        values.push_back(std::move(v));
    }
    std::vector<Real> result(source.size());
    for (const Output& output : g.outputs()) {
        const std::array<int, 2> elements = {output.first, output.second};
        for (int i = 0; i < lanes; ++i) {
            const int element = elements[i / lanesPerElement];
            if (element < 0) continue;
            const Real value = values[output.node][i];
            result[element * lanesPerElement + i % lanesPerElement] =
                output.negated[i] ? -value : value;
        }
    }
    return result;
}

}   // namespace kfm::kernelgen
