// What the command line shows and writes of single kernels.
#pragma once

#include <string>
#include <string_view>

#include "kernelgen/generator.h"

namespace kfm::kernelgen {

// The family whose generated files are called `source`_<N>_<element>.cpp; throws for others.
const KernelFamily& kernelFamily(std::string_view source);

// What is generated for a target: the kernels, once each, then the codelets.
struct KernelFile {
    std::string_view folder, source;
    int length;
    const registry::Element* element;
};
std::vector<KernelFile> kernelFiles();

// Before the name of a source: its kernels for rows.
inline constexpr std::string_view rowsFolder = "rows/";

// The source of one kernel; an empty choice takes the schedule on record. Given one, a kernel of rows
// takes all of them in groups.
std::string kernelSource(std::string_view source, int length, const registry::Element& element,
                         const Target& target, std::string_view choice = {});

// The schedules, and where vectors are wide enough the pairings, from which the tuner chooses; then
// what may be better than the winner of those.
std::vector<ScheduleChoice> candidates(std::string_view source, int length,
                                       const registry::Element& element, const Target& target,
                                       std::string_view winner = {});

// Factor tree, lane mapping, operation counts.
std::string explain(std::string_view source, int length, const registry::Element& element);

// One stage of a kernel as text: "graph" as built, "schedule" in execution order, "dot"; "program"
// has the operations as they are printed, joined in pairs where the target has the width.
std::string dump(std::string_view stage, std::string_view source, int length,
                 const registry::Element& element, const Target& target);

// The operation counts of all kernels as they are printed for a target, a row each.
std::string operationCountTable(const Target& target);

}   // namespace kfm::kernelgen
