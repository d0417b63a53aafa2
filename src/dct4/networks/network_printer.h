// Prints a graph as C++: the body of a codelet between a reader and a writer of numbered slots.
#pragma once

#include <string>
#include <string_view>

#include "kernelgen/graph.h"
#include "kernelgen/schedule.h"

namespace kfm::dct4 {

// The members of a class: `lanes` of the graph, a table of constants, and run<Vector>(in, out),
// which takes its values from in.load(slot) and hands its results to out.store(slot, value). Slots
// are the first elements of the graph's loads and outputs. A graph of one lane works on scalars; one
// whose lanes do not meet works on vectors of any width.
std::string printNetwork(const kernelgen::Graph& g, bool doublePrecision,
                         const kernelgen::ScheduleChoice& choice);

}   // namespace kfm::dct4
