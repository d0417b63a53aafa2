#include "dft/real/real_kernels.h"

#include <cmath>
#include <sstream>

#include "dft/real/factors.h"
#include "kernelgen/emit.h"
#include "kernelgen/kernel_file.h"

namespace kfm::dft::real {

using namespace kernelgen;
using registry::Element;
using registry::Family;

namespace {

constexpr std::string_view forwardKernels = "DFTFwd_RToPacked";
constexpr std::string_view inverseKernels = "DFTInv_PackedToR";

ScheduleChoice forwardChoice(int n, const Element& element, const Target& target) {
    static constexpr ScheduleRow rows[] = {
#include "dft/real/DFTFwd_RToPacked_schedules.def"
        {}};
    return findSchedule(rows, n, element, target);
}

ScheduleChoice inverseChoice(int n, const Element& element, const Target& target) {
    static constexpr ScheduleRow rows[] = {
#include "dft/real/DFTInv_PackedToR_schedules.def"
        {}};
    return findSchedule(rows, n, element, target);
}

std::string describe(int n, const Element&) {
    const Row plan = row(n);
    return plan.plan.text() + (plan.lanes == 1 ? "; scalar" : "; two lanes");
}

// 1/sqrt(n) as two operations give it, which is not always the nearest double.
Constant twoStepInverseSqrt(int n) {
    return Constant(Constant::Wide(1.0 / std::sqrt(static_cast<double>(n))));
}

std::string layout(const Family& family, int n) {
    const auto names = {std::pair{"CCS", "Ccs"}, {"Pack", "Pack"}, {"Perm", "Perm"}};
    for (const auto& [name, type] : names)
        if (family.name.find(name) != std::string_view::npos)
            return std::string("kfm::") + type + "Layout<" + std::to_string(n) + ">";
    return {};
}

std::string function(const Family& family, int n, const Element& element) {
    const std::string type(element.type), packed = layout(family, n);
    const bool zeros = !family.inverse() && packed.find("Ccs") != std::string::npos;
    std::ostringstream out;
    out << "KfmStatus " << registry::functionName(family, n, element) << "(const " << type
        << "* src, " << type << "* dst, int flag) {\n";
    const std::string run = "kfm::runKernel<Kernel, " + packed + ">(src, dst, flag);\n";
    if (zeros)
        out << "    const KfmStatus status = " << run << "    if (status == kfmOk) " << packed
            << "::storeZeros(dst);\n    return status;\n}\n";
    else
        out << "    return " << run << "}\n";
    return out.str();
}

std::string emit(bool inverse, const Graph& g, int n, const Element& element,
                 const ScheduleChoice& choice, std::span<const Family* const> families) {
    std::ostringstream out;
    out << fileHead((inverse ? "Inverse real DFT, " : "Real DFT, ") + describe(n, element), g,
                    choice)
        << "#include \"core/real_kernel.h\"\n\nnamespace {\n\nusing namespace kfm::simd;\n"
        << "using kfm::launder;\n\n"
        << emitTransform(g, "Transform", element, choice,
                         inverse ? Packed::source : Packed::destination)
        << "\nstruct Kernel : Transform {\n"
        << "    static constexpr kfm::Direction direction = kfm::Direction::"
        << (inverse ? "inverse" : "forward") << ";\n    "
        << scaleFactors(n, twoStepInverseSqrt(n), element, g.lanes())
        << "};\n\n}   // namespace\n\nextern \"C\" {\n\n";
    for (const Family* family : families) out << function(*family, n, element) << "\n";
    out << "}\n";
    return out.str();
}

}   // namespace

KernelFamily forwardFamily() {
    const auto graph = [](int n, const Element& element, const Target&, bool) {
        return forwardGraph(n, !element.doublePrecision);
    };
    const auto write = [](int n, const Element& element, const Target&,
                          const ScheduleChoice& choice,
                          std::span<const Family* const> families) {
        return emit(false, forwardGraph(n, !element.doublePrecision), n, element, choice,
                    families);
    };
    return {forwardKernels, graph, describe, forwardChoice, write};
}

KernelFamily inverseFamily() {
    const auto graph = [](int n, const Element& element, const Target&, bool) {
        return inverseGraph(n, !element.doublePrecision);
    };
    const auto write = [](int n, const Element& element, const Target&,
                          const ScheduleChoice& choice,
                          std::span<const Family* const> families) {
        return emit(true, inverseGraph(n, !element.doublePrecision), n, element, choice,
                    families);
    };
    return {inverseKernels, graph, describe, inverseChoice, write};
}

}   // namespace kfm::dft::real
