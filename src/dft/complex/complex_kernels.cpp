#include "dft/complex/complex_kernels.h"

#include <sstream>
#include <stdexcept>

#include "kernelgen/emit.h"
#include "kernelgen/kernel_file.h"
#include "kernelgen/kernel_functions.h"

namespace kfm::dft::complex {

using namespace kernelgen;
using registry::Element;
using registry::Family;

namespace {

constexpr std::string_view kernels = "DFT_CToC";

Graph graph(int n, const Element& element, const Target&, bool inverse) {
    return element.doublePrecision ? doubleGraph(doublePrecisionPlan(n), inverse)
                                   : singleGraph(singlePrecisionRow(n), inverse);
}

Plan plan(int n, const Element& element) {
    return element.doublePrecision ? doublePrecisionPlan(n) : singlePrecisionRow(n).plan;
}

Graph graphOf(const Plan& plan, const Element& element) {
    if (element.doublePrecision) return doubleGraph(plan, false);
    const SinglePrecisionRow row = singlePrecisionRow(plan.n);
    if (!sameSteps(plan, row.plan))
        throw std::invalid_argument("the lane mapping is made for the order of steps on record");
    return singleGraph({plan, row.lanes}, false);
}

std::string describe(int n, const Element& element) {
    if (element.doublePrecision) return doublePrecisionPlan(n).text();
    const SinglePrecisionRow row = singlePrecisionRow(n);
    return row.plan.text() + "; lanes: " + text(row.lanes);
}

ScheduleChoice choice(int n, const Element& element, const Target& target) {
    static constexpr ScheduleRow rows[] = {
#include "dft/complex/DFT_CToC_schedules.def"
        {}};
    return findSchedule(rows, n, element, target);
}

std::string emit(int n, const Element& element, const Target& target, const ScheduleChoice& choice,
                 std::span<const Family* const> families) {
    std::ostringstream out, exported;
    out << fileHead("Complex DFT, " + describe(n, element), graph(n, element, target, false),
                    choice)
        << "#include \"core/complex_kernel.h\"\n\nnamespace {\n\nusing namespace kfm::simd;\n"
        << "using kfm::launder;\n\n";
    for (const Family* family : families) {
        const std::string kernel = family->inverse() ? "Inverse" : "Forward";
        out << emitTransform(graph(n, element, target, family->inverse()), kernel + "Transform",
                             element, choice)
            << "\nstruct " << kernel << " : " << kernel << "Transform {\n"
            << "    static constexpr kfm::Direction direction = kfm::Direction::"
            << (family->inverse() ? "inverse" : "forward") << ";\n    "
            << scaleFactors(n, Constant::inverseSqrt(n), element, element.doublePrecision ? 2 : 4)
            << "};\n\n";
        exported << kernelFunctions(*family, n, element, target, kernel) << "\n";
    }
    out << "}   // namespace\n\nextern \"C\" {\n\n" << exported.str() << "}\n";
    return out.str();
}

}   // namespace

KernelFamily kernelFamily() { return {kernels, graph, plan, graphOf, describe, choice, emit}; }

}   // namespace kfm::dft::complex
