#include "kernelgen/kernel_commands.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <numeric>
#include <set>
#include <sstream>
#include <stdexcept>

#include "dct4/networks/codelet_families.h"
#include "dft/complex/complex_kernels.h"
#include "dft/real/real_kernels.h"
#include "hartley/hartley_kernels.h"
#include "kernelgen/program.h"
#include "kernelgen/report.h"
#include "wht/wht_kernels.h"

namespace kfm::kernelgen {
namespace {

using registry::Element;

const std::vector<KernelFamily>& allFamilies() {
    static const std::vector<KernelFamily> families = [] {
        std::vector<KernelFamily> result = dct4::codeletFamilies();
        result.push_back(dft::complex::kernelFamily());
        result.push_back(dft::real::forwardFamily());
        result.push_back(dft::real::inverseFamily());
        result.push_back(hartley::kernelFamily());
        result.push_back(wht::kernelFamily());
        return result;
    }();
    return families;
}

// The columns of the count table, and what `explain` prints.
constexpr std::array columns = {
    std::pair{"additions", &OperationCounts::additions},
    std::pair{"multiplications", &OperationCounts::multiplications},
    std::pair{"shuffles", &OperationCounts::shuffles},
    std::pair{"signChanges", &OperationCounts::signChanges},
    std::pair{"loads", &OperationCounts::loads},
    std::pair{"stores", &OperationCounts::stores},
    std::pair{"conversions", &OperationCounts::conversions},
};

std::string explainPairing(const Graph& graph, const Element& element, const Ports& ports,
                           const PairingChoice& choice) {
    const Pairing pairing = pairOperations(graph, choice);
    const auto program = wideProgram(graph, element, ports, pairing);
    const std::vector<int> live = graph.liveNodes();
    const auto isAlone = [&](int node) {
        return graph.nodes()[node].op != Op::load && pairing.alone(node);
    };
    return std::to_string(program->operations().size()) + " instead of " +
           std::to_string(live.size()) + " operations, " +
           std::to_string(std::ranges::count_if(live, isAlone)) + " on one half";
}

// The operations as they are printed, in execution order.
std::string dumpProgram(const Graph& graph, const Element& element, const Ports& ports,
                        const ScheduleChoice& choice) {
    const Pairing pairing = choice.pairing ? pairOperations(graph, *choice.pairing) : Pairing();
    const auto program = choice.pairing ? wideProgram(graph, element, ports, pairing)
                                        : narrowProgram(graph, element, ports);
    std::vector<std::vector<int>> operands;
    for (const Operation& operation : program->operations()) operands.push_back(operation.operands);
    program->scales();   // names what stores refer to
    std::string text;
    for (const int number : schedule(operands, choice)) {
        const Operation& operation = program->operations()[number];
        text += operation.name + " = " + program->expression(number) + "\n";
        for (const int output : operation.outputs) text += program->store(output);
    }
    return text;
}

}   // namespace

const KernelFamily& kernelFamily(std::string_view source) {
    for (const KernelFamily& family : allFamilies())
        if (family.source == source) return family;
    throw std::invalid_argument("no kernels are called " + std::string(source));
}

std::string kernelSource(std::string_view source, int length, const Element& element,
                         const Target& target, std::string_view choice,
                         std::string_view onlyFamily) {
    const KernelFamily& family = kernelFamily(source);
    std::vector<const registry::Family*> members;
    for (const registry::Family& member : registry::families())
        if (member.kernelSource == source && (onlyFamily.empty() || onlyFamily == member.name))
            members.push_back(&member);
    return family.emit(length, element, target,
                       !family.choice   ? ScheduleChoice()
                       : choice.empty() ? family.choice(length, element, target)
                                        : ScheduleChoice::parse(choice),
                       members);
}

std::vector<ScheduleChoice> candidates(std::string_view source, int length, const Element& element,
                                       const Target& target, std::string_view winner) {
    const KernelFamily& family = kernelFamily(source);
    if (!family.graph) throw std::invalid_argument(std::string(source) + " kernels have no schedules");
    const bool wide = target.vectorBytes > 16 && family.inPairs;
    if (!winner.empty())
        return wide ? orderCandidates(ScheduleChoice::parse(winner)) : std::vector<ScheduleChoice>();
    if (!wide) return scheduleCandidates();
    return pairingCandidates(family.graph(length, element, target, false),
                             family.choice(length, element, target));
}

std::string explain(std::string_view source, int length, const Element& element) {
    const KernelFamily& family = kernelFamily(source);
    std::ostringstream out;
    out << source << ' ' << length << ' ' << element.suffix << '\n'
        << "  factors          " << family.describe(length, element) << '\n';
    if (!family.graph) return out.str();
    for (const Target& target : targets()) {
        const Graph graph = family.graph(length, element, target, false);
        const ScheduleChoice choice = family.choice(length, element, target);
        out << target.name << '\n'
            << "  schedule         " << choice.text() << '\n'
            << "  reloads          " << countReloads(graph, schedule(graph, choice),
                                                     target.vectorRegisters)
            << " at least, with " << target.vectorRegisters << " registers\n";
        if (choice.pairing && graph.lanes() > 1) {
            const auto ports = family.ports(graph.lanes(), element);
            out << "  pairing          "
                << explainPairing(graph, element, *ports, *choice.pairing) << '\n';
        }
        const OperationCounts counts = countOperations(graph);
        for (const auto& [name, member] : columns)
            out << "  " << std::left << std::setw(17) << name << counts.*member << '\n';
    }
    return out.str();
}

std::string dump(std::string_view stage, std::string_view source, int length,
                 const Element& element, const Target& target) {
    const KernelFamily& family = kernelFamily(source);
    if (!family.graph) throw std::invalid_argument(std::string(source) + " kernels have no stages");
    const Graph graph = family.graph(length, element, target, false);
    const ScheduleChoice choice = family.choice(length, element, target);
    if (stage == "program")
        return dumpProgram(graph, element, *family.ports(graph.lanes(), element), choice);
    const std::vector<int> scheduled = schedule(graph, choice);
    if (stage == "schedule") return dumpText(graph, scheduled);
    if (stage == "dot") return dumpDot(graph, scheduled);
    if (stage != "graph") throw std::invalid_argument("no stage is called " + std::string(stage));
    std::vector<int> built(graph.nodes().size());
    std::iota(built.begin(), built.end(), 0);
    return dumpText(graph, built);
}

std::string operationCountTable() {
    std::ostringstream out;
    out << "# Vector operations of each kernel: `kernelgen counts` writes this table.\n"
        << "kernels length element";
    for (const auto& [name, member] : columns) out << ' ' << name;
    out << '\n';
    std::set<std::string_view> done;
    for (const registry::Family& family : registry::families()) {
        const bool isNew = done.insert(family.kernelSource).second;
        if (!isNew || !kernelFamily(family.kernelSource).graph) continue;
        for (const Element* element : family.elements)
            for (int length = family.first; length <= family.last; ++length) {
                const OperationCounts counts = countOperations(
                    kernelFamily(family.kernelSource)
                        .graph(length, *element, *findTarget("sse2-x86-64"), false));
                out << family.kernelSource << ' ' << length << ' ' << element->suffix;
                for (const auto& [name, member] : columns) out << ' ' << counts.*member;
                out << '\n';
            }
    }
    return out.str();
}

}   // namespace kfm::kernelgen
