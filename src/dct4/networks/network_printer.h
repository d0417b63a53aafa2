// Prints a graph as C++: the body of a codelet between a reader and a writer of numbered slots.
#pragma once

#include <string>
#include <string_view>

#include "kernelgen/graph.h"
#include "kernelgen/schedule.h"

namespace kfm::dct4 {

// The members of a class: `Vector`, a table of constants, and run(in, out), which takes its values
// from in.load(slot) and hands its results to out.store(slot, value). Slots are the first elements
// of the graph's loads and outputs. A graph of one lane works on scalars, others on the type that the
// template `vector` makes of a real one.
std::string printNetwork(const kernelgen::Graph& g, bool doublePrecision, std::string_view vector,
                         const kernelgen::ScheduleChoice& choice);

}   // namespace kfm::dct4
