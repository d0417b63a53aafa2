#include "hartley/hartley_kernels.h"

#include "hartley/factors.h"
#include "kernelgen/kernel_file.h"

namespace kfm::hartley {

using namespace kernelgen;
using registry::Element;

namespace {

constexpr std::string_view kernels = "Hartley";

Graph graph(int n, const Element& element, const Target&, bool) {
    return hartleyGraph(n, !element.doublePrecision);
}

Plan plan(int n, const Element&) { return row(n).plan; }

Graph graphOf(const Plan& plan, const Element& element) {
    return hartleyGraph(RealRow(plan), !element.doublePrecision);
}

std::string describe(int n, const Element&) { return row(n).text(); }

ScheduleChoice choice(int n, const Element& element, const Target& target) {
    static constexpr ScheduleRow rows[] = {
#include "hartley/Hartley_schedules.def"
        {}};
    return findSchedule(rows, n, element, target);
}

std::string emit(int n, const Element& element, const Target&, const ScheduleChoice& choice,
                 std::span<const registry::Family* const>) {
    const std::string type(element.type);
    const std::string function =
        "KfmStatus " + registry::functionName(*registry::findFamily(kernels), n, element) +
        "(const " + type + "* src, " + type + "* dst, int flag) {\n" +
        "    return kfm::runKernel<Kernel, void>(src, dst, flag);\n}\n\n";
    return printRealKernel({"Hartley transform, " + describe(n, element), "both", Packed::neither,
                            Constant::inverseSqrt(n), function},
                           hartleyGraph(n, !element.doublePrecision), n, element, choice);
}

}   // namespace

KernelFamily kernelFamily() { return {kernels, graph, plan, graphOf, describe, choice, emit}; }

}   // namespace kfm::hartley
