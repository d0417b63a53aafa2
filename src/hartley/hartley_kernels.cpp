#include "hartley/hartley_kernels.h"

#include <sstream>

#include "hartley/factors.h"
#include "kernelgen/emit.h"
#include "kernelgen/kernel_file.h"

namespace kfm::hartley {

using namespace kernelgen;
using registry::Element;

namespace {

constexpr std::string_view kernels = "Hartley";

Graph graph(int n, const Element& element, const Target&, bool) {
    return hartleyGraph(n, !element.doublePrecision);
}

std::string describe(int n, const Element&) {
    const Row plan = row(n);
    return plan.plan.text() + (plan.lanes == 1 ? "; scalar" : "; two lanes");
}

ScheduleChoice choice(int n, const Element& element, const Target& target) {
    static constexpr ScheduleRow rows[] = {
#include "hartley/Hartley_schedules.def"
        {}};
    return findSchedule(rows, n, element, target);
}

std::string emit(int n, const Element& element, const Target&, const ScheduleChoice& choice,
                 std::span<const registry::Family* const>) {
    const Graph g = hartleyGraph(n, !element.doublePrecision);
    const std::string type(element.type);
    std::ostringstream out;
    out << fileHead("Hartley transform, " + describe(n, element), g, choice)
        << "#include \"core/real_kernel.h\"\n\nnamespace {\n\nusing namespace kfm::simd;\n"
        << "using kfm::launder;\n\n"
        << emitTransform(g, "Transform", element, choice)
        << "\nstruct Kernel : Transform {\n"
        << "    static constexpr kfm::Direction direction = kfm::Direction::both;\n    "
        << scaleFactors(n, Constant::inverseSqrt(n), element, g.lanes())
        << "};\n\n}   // namespace\n\nextern \"C\" {\n\n"
        << "KfmStatus " << registry::functionName(*registry::findFamily(kernels), n, element)
        << "(const " << type << "* src, " << type << "* dst, int flag) {\n"
        << "    return kfm::runKernel<Kernel, void>(src, dst, flag);\n}\n\n}\n";
    return out.str();
}

}   // namespace

KernelFamily kernelFamily() { return {kernels, graph, describe, choice, emit}; }

}   // namespace kfm::hartley
