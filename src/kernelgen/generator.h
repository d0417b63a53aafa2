// How a family hands its kernels to the generator.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "kernelgen/array_ports.h"
#include "kernelgen/graph.h"
#include "kernelgen/plan.h"
#include "kernelgen/schedule.h"
#include "kernelgen/target.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

struct KernelFamily {
    std::string_view source;   // as in the registry: "DFT_CToC"

    // The graph of one transform, scale factor and memory operations left open. Empty, as
    // `choice` is, where kernels are templates and not written from graphs.
    std::function<Graph(int length, const registry::Element&, const Target&, bool inverse)> graph =
        {};
    // The factor tree of a length, and the graph that another tree of it would give.
    std::function<Plan(int length, const registry::Element&)> plan = {};
    std::function<Graph(const Plan&, const registry::Element&)> graphOf = {};
    // The factor tree and the lane mapping in words.
    std::function<std::string(int length, const registry::Element&)> describe = {};
    // The schedule on record.
    std::function<ScheduleChoice(int length, const registry::Element&, const Target&)> choice = {};
    // The C++ source of the functions of one length and element type: those of all families with
    // this source, or of one of them.
    std::function<std::string(int length, const registry::Element&, const Target&,
                              const ScheduleChoice&, std::span<const registry::Family* const>)>
        emit = {};
    // 1/sqrt(n) as its functions scale by it.
    std::function<Constant(int n)> inverseSqrt = Constant::inverseSqrt;
    // Where its values come from and go to in dumps.
    std::function<std::unique_ptr<Ports>(const registry::Element&)> ports =
        [](const registry::Element& element) { return std::make_unique<ArrayPorts>(element); };
    // Whether operations may be joined in pairs; not where a graph stands for vectors of any width.
    bool inPairs = true;
};

}   // namespace kfm::kernelgen
