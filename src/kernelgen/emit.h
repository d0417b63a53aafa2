// Prints an ordered graph as C++: the body of one transform and the table of its constants.
//
// The body is a template over the memory operations, so the aligned and the unaligned copy are
// one text. Constants are whole vectors in one table whose address is hidden from the compiler:
// a compiler that sees the values rebuilds them from scalars at twice the instructions.
//
// Kernels on complex elements move whole elements; kernels on real data move single ones, whose
// places in a packed spectrum are the template parameter's to know: one text serves all layouts.
#pragma once

#include <string>
#include <string_view>

#include "kernelgen/array_ports.h"
#include "kernelgen/graph.h"
#include "kernelgen/schedule.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// What comes in by ports and goes out by them: the statements, and the tables that they refer to.
struct Body {
    std::string tables, statements;
};
Body emitBody(Graph g, const registry::Element& element, const ScheduleChoice& choice,
              const Ports& ports);

// A struct `name` with the constants and a static function transform<Memory>(src, dst, scale),
// where `scale` points to the factor.
std::string emitTransform(Graph g, std::string_view name, const registry::Element& element,
                          const ScheduleChoice& choice, Packed packed = Packed::neither);

}   // namespace kfm::kernelgen
