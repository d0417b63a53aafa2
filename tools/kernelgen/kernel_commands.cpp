#include "kernel_commands.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <numeric>
#include <span>
#include <sstream>
#include <stdexcept>

#include "dct4/networks/codelet_families.h"
#include "dft/complex/complex_kernels.h"
#include "dft/real/real_kernels.h"
#include "hartley/hartley_kernels.h"
#include "kernelgen/candidates.h"
#include "kernelgen/program.h"
#include "kernelgen/report.h"
#include "rows/kernels/rows_kernel.h"
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
    std::pair{"moves", &OperationCounts::moves},
    std::pair{"pairs", &OperationCounts::pairs},
};

// The last two are of operations that are joined in pairs.
auto columnsFor(bool paired) { return std::span(columns).first(columns.size() - (paired ? 0 : 2)); }

// The operations as they are printed, in execution order.
std::string dumpProgram(const Graph& graph, const Element& element, const Ports& ports,
                        const ScheduleChoice& choice) {
    Program printed = program(graph, element, ports, choice.pairings);
    printed.scales();   // names what stores refer to
    std::string text;
    for (const int number : schedule(printed.operands(), choice)) {
        const Operation& operation = printed.operations()[number];
        text += operation.name + " = " + printed.expression(number) + "\n";
        for (const int output : operation.outputs) text += printed.store(output);
    }
    return text;
}

}   // namespace

const KernelFamily& kernelFamily(std::string_view source) {
    for (const KernelFamily& family : allFamilies())
        if (family.source == source) return family;
    throw std::invalid_argument("no kernels are called " + std::string(source));
}

std::vector<KernelFile> kernelFiles() {
    std::vector<KernelFile> result;
    for (const registry::Family& family : registry::families()) {
        if (registry::familiesOf(family.kernelSource).front() != &family) continue;
        for (const Element* element : family.elements)
            for (int length = family.first; length <= family.last; ++length)
                result.push_back({family.folder, family.kernelSource, length, element});
    }
    for (const dct4::CodeletRange& range : dct4::codeletRanges())
        for (const char* suffix : {"32f", "64f"})
            for (int size = range.first; size <= range.last; size *= 2)
                result.push_back({"dct4", range.function, size, registry::findElement(suffix)});
    return result;
}

std::string kernelSource(std::string_view source, int length, const Element& element,
                         const Target& target, std::string_view choice) {
    if (source.starts_with(rowsFolder)) {
        source.remove_prefix(rowsFolder.size());
        const KernelFamily& family = kernelFamily(source);
        if (choice.empty())
            return rowsKernelSource(family, length, element, target,
                                    rowsForms(source, length, element, target),
                                    rowsSchedule(source, length, element, target));
        return rowsKernelSource(family, length, element, target, widestForms(element, target),
                                ScheduleChoice::parse(choice));
    }
    const KernelFamily& family = kernelFamily(source);
    return family.emit(length, element, target,
                       !family.choice   ? ScheduleChoice()
                       : choice.empty() ? family.choice(length, element, target)
                                        : ScheduleChoice::parse(choice),
                       registry::familiesOf(source));
}

std::vector<ScheduleChoice> candidates(std::string_view source, int length, const Element& element,
                                       const Target& target, std::string_view winner) {
    if (source.starts_with(rowsFolder))
        return winner.empty() ? rowsCandidates() : std::vector<ScheduleChoice>();
    const KernelFamily& family = kernelFamily(source);
    if (!family.graph)
        throw std::invalid_argument(std::string(source) + " kernels have no schedules");
    const Graph graph = family.graph(length, element, target, false);
    const int times = family.inPairs ? pairingsToFill(graph, element.doublePrecision, target) : 0;
    if (times == 0) return winner.empty() ? scheduleCandidates() : std::vector<ScheduleChoice>();
    if (!winner.empty()) return orderCandidates(ScheduleChoice::parse(winner));
    return pairingCandidates(graph, family.choice(length, element, target), times);
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
        const auto ports = family.ports(element);
        const Program printed = program(graph, element, *ports, choice.pairings);
        const auto operands = printed.operands();
        out << target.name << '\n'
            << "  schedule         " << choice.text() << '\n'
            << "  reloads          "
            << countReloads(operands, schedule(operands, choice), target.vectorRegisters)
            << " at least, with " << target.vectorRegisters << " registers\n";
        if (family.graphOf)
            out << "  rows             " << describeRows(family, length, element, target) << '\n';
        const OperationCounts counts = printed.counts();
        for (const auto& [name, member] : columnsFor(counts.pairs > 0))
            out << "  " << std::left << std::setw(17) << name << counts.*member << '\n';
        if (counts.pairs > 0)
            out << "  in all           " << printed.operations().size() << " operations instead of "
                << graph.liveNodes().size() << ", and stores\n";
    }
    return out.str();
}

std::string dump(std::string_view stage, std::string_view source, int length,
                 const Element& element, const Target& target) {
    const KernelFamily& family = kernelFamily(source);
    if (!family.graph) throw std::invalid_argument(std::string(source) + " kernels have no stages");
    const Graph graph = family.graph(length, element, target, false);
    const ScheduleChoice choice = family.choice(length, element, target);
    if (stage == "program") return dumpProgram(graph, element, *family.ports(element), choice);
    const std::vector<int> scheduled = schedule(graph, choice);
    if (stage == "schedule") return dumpText(graph, scheduled);
    if (stage == "dot") return dumpDot(graph, scheduled);
    if (stage != "graph") throw std::invalid_argument("no stage is called " + std::string(stage));
    std::vector<int> built(graph.nodes().size());
    std::iota(built.begin(), built.end(), 0);
    return dumpText(graph, built);
}

std::string operationCountTable(const Target& target) {
    const auto shown = columnsFor(target.vectorBytes > 16);
    std::ostringstream out;
    out << "# Vector operations of each kernel: `kernelgen counts` writes this table.\n"
        << "kernels length element";
    for (const auto& [name, member] : shown) out << ' ' << name;
    out << '\n';
    for (const auto& [folder, source, length, element] : kernelFiles()) {
        const KernelFamily& family = kernelFamily(source);
        if (!family.graph) continue;
        const Graph graph = family.graph(length, *element, target, false);
        const auto ports = family.ports(*element);
        const ScheduleChoice choice = family.choice(length, *element, target);
        const OperationCounts counts = program(graph, *element, *ports, choice.pairings).counts();
        out << source << ' ' << length << ' ' << element->suffix;
        for (const auto& [name, member] : shown) out << ' ' << counts.*member;
        out << '\n';
    }
    return out.str();
}

}   // namespace kfm::kernelgen
