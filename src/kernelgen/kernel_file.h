// What the generated files of all families have in common.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "kernelgen/emit.h"
#include "kernelgen/graph.h"
#include "kernelgen/schedule.h"
#include "kernelgen/target.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// The schedules on record, a row for each kernel and target: <kernel source>_schedules.def in the
// family's folder, written by the tuner. A kernel without a row takes the default.
struct ScheduleRow {
    std::string_view target;
    int length;
    std::string_view element, choice;
};
#define KFM_SCHEDULE(target, length, element, choice) {#target, length, #element, #choice},

ScheduleChoice findSchedule(std::span<const ScheduleRow> rows, int length,
                            const registry::Element& element, const Target& target);

// The comment at the head of a generated file: what is computed how, at what cost.
std::string fileHead(std::string_view title, const Graph& g, const ScheduleChoice& choice);

// The static member `scales` of a kernel: 1, 1/n and the given 1/sqrt(n) as `lanes` equal lanes in
// double precision, single values in single precision.
std::string scaleFactors(int n, const Constant& bySqrtN, const registry::Element& element,
                         int lanes);

// The layout of a family's packed spectrum as a type; empty where it has none.
std::string packedLayout(const registry::Family& family, int n);

// The file of a kernel on real data: its graph as a transform, its scale factors, and `functions`,
// which run the type `Kernel`.
struct RealKernelFile {
    std::string title, direction;   // direction: of the scale factors, "forward"
    Packed packed;
    Constant bySqrtN;
    std::string functions;
};
std::string printRealKernel(const RealKernelFile& file, const Graph& g, int n,
                            const registry::Element& element, const ScheduleChoice& choice);

}   // namespace kfm::kernelgen
