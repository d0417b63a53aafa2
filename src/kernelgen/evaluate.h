// Evaluates a kernel's graph lane by lane in any number type: the algorithm can be checked before
// a line is emitted, and the emitted kernel must give the bits of the element-type evaluation.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

// The lanes of every node. `source` holds the input as a flat array of the lanes of its elements.
// Nodes that are wide are computed in `Wide`, all others in `Real`; what is of no interest is zero.
template <class Real, class Wide = Real>
std::vector<std::vector<Wide>> evaluateNodes(const Graph& g, std::span<const Real> source) {
    using Lanes = std::vector<Wide>;
    const int lanes = g.lanes(), lanesPerElement = g.lanesPerElement();
    std::vector<Lanes> values;
    const auto at = [&](Ref ref) -> const Lanes& { return values[ref.node()]; };
    for (const Node& node : g.nodes()) {
        Lanes v(lanes);
        for (int i = 0; i < lanes; ++i) {
            switch (node.op) {
            case Op::load: {
                const int element = node.elements[i / lanesPerElement % node.elements.size()];
                v[i] =
                    element < 0 ? Real(0) : source[element * lanesPerElement + i % lanesPerElement];
                break;
            }
            case Op::add: v[i] = at(node.a)[i] + at(node.b)[i]; break;
            case Op::sub: v[i] = at(node.a)[i] - at(node.b)[i]; break;
            case Op::mul:
                v[i] = static_cast<Wide>(g.constant(node.constant)[i].value()) * at(node.a)[i];
                break;
            case Op::select:
                v[i] = node.pattern[i] < 0       ? Wide(0)
                       : node.pattern[i] < lanes ? at(node.a)[node.pattern[i]]
                                                 : at(node.b)[node.pattern[i] - lanes];
                break;
            case Op::join: {
                const int part = node.pattern[2 * i / lanes];
                if (part >= 0)
                    v[i] = at(2 * i < lanes ? node.a : node.b)[part * lanes / 2 + i % (lanes / 2)];
                break;
            }
            case Op::flip: v[i] = node.pattern[i] ? -at(node.a)[i] : at(node.a)[i]; break;
            case Op::subtract:
                v[i] = node.pattern[i] ? Wide(0) - at(node.a)[i] : at(node.a)[i];
                break;
            case Op::widen:
            case Op::round: v[i] = at(node.a)[i]; break;
            }
            // A single operation rounded twice, to Wide and to Real, is rounded as by Real alone.
            if (!node.wide) v[i] = static_cast<Real>(v[i]);
        }
        values.push_back(std::move(v));
    }
    return values;
}

// The outputs, laid out like the source.
template <class Real, class Wide = Real>
std::vector<Real> evaluate(const Graph& g, std::span<const Real> source) {
    const int lanesPerElement = g.lanesPerElement();
    const auto values = evaluateNodes<Real, Wide>(g, source);
    std::vector<Real> result(source.size());
    for (const Output& output : g.outputs()) {
        const int stored = static_cast<int>(output.elements.size()) * lanesPerElement;
        for (int i = 0; i < stored; ++i) {
            const int element = output.elements[i / lanesPerElement];
            if (element < 0) continue;
            const Real value = static_cast<Real>(values[output.node][i]);
            result[element * lanesPerElement + i % lanesPerElement] =
                output.negated[i] ? -value : value;
        }
    }
    return result;
}

}   // namespace kfm::kernelgen
