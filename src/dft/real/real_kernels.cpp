#include "dft/real/real_kernels.h"

#include <cmath>
#include <sstream>

#include "dft/real/factors.h"
#include "kernelgen/kernel_file.h"

namespace kfm::dft::real {

using namespace kernelgen;
using registry::Element;
using registry::Family;

namespace {

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

std::string describe(int n, const Element&) { return row(n).text(); }

// 1/sqrt(n) as two operations give it, which is not always the nearest double.
Constant twoStepInverseSqrt(int n) {
    return Constant(Constant::Wide(1.0 / std::sqrt(static_cast<double>(n))));
}

std::string function(const Family& family, int n, const Element& element) {
    const std::string type(element.type), packed = packedLayout(family, n);
    const bool zeros = !family.inverse() && packed.find("Ccs") != std::string::npos;
    std::ostringstream out;
    out << "KfmStatus " << registry::functionName(family, n, element) << "(const " << type
        << "* src, " << type << "* dst, int flag) {\n";
    const std::string run = "kfm::runKernel<Kernel, " + packed + ">(src, dst, flag);\n";
    if (zeros)
        out << "    const KfmStatus status = " << run << "    if (status == kfmOk) " << packed
            << "::storeZeros(dst);\n    return status;\n}\n";
    else out << "    return " << run << "}\n";
    return out.str();
}

Graph graph(bool inverse, int n, const Element& element) {
    const bool single = !element.doublePrecision;
    return inverse ? inverseGraph(n, single) : forwardGraph(n, single);
}

std::string emit(bool inverse, int n, const Element& element, const ScheduleChoice& choice,
                 std::span<const Family* const> families) {
    std::string functions;
    for (const Family* family : families) functions += function(*family, n, element) + "\n";
    const std::string title =
        (inverse ? "Inverse real DFT, " : "Real DFT, ") + describe(n, element);
    return printRealKernel({title, inverse ? "inverse" : "forward",
                            inverse ? Packed::source : Packed::destination, twoStepInverseSqrt(n),
                            functions},
                           graph(inverse, n, element), n, element, choice);
}

KernelFamily family(bool inverse) {
    return {inverse ? "DFTInv_PackedToR" : "DFTFwd_RToPacked",
            [=](int n, const Element& element, const Target&, bool) {
                return graph(inverse, n, element);
            },
            [](int n, const Element&) { return row(n).plan; },
            [=](const Plan& plan, const Element& element) {
                const RealRow variant(plan, row(plan.n).lanes);
                const bool single = !element.doublePrecision;
                return inverse ? inverseGraph(variant, single) : forwardGraph(variant, single);
            },
            describe,
            inverse ? inverseChoice : forwardChoice,
            [=](int n, const Element& element, const Target&, const ScheduleChoice& choice,
                std::span<const Family* const> families) {
                return emit(inverse, n, element, choice, families);
            },
            twoStepInverseSqrt};
}

}   // namespace

KernelFamily forwardFamily() { return family(false); }
KernelFamily inverseFamily() { return family(true); }

}   // namespace kfm::dft::real
