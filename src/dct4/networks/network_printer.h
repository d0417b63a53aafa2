// Prints a graph as C++: the body of a codelet between a reader and a writer of numbered slots.
#pragma once

#include <memory>
#include <string>

#include "kernelgen/graph.h"
#include "kernelgen/ports.h"
#include "kernelgen/schedule.h"
#include "registry/registry.h"

namespace kfm::dct4 {

// Values come from in.load(slot) and go to out.store(slot, value); slots are the first elements of
// a graph's loads and outputs. Halves of a vector come from in.load(low, high) or
// in.loadApart(low, high) and go to out.store(low, high, value).
std::unique_ptr<kernelgen::Ports> slotPorts(const registry::Element& element);

// The members of a class: `lanes` of the graph, tables of constants, and run<Vector>(in, out). A
// graph of one lane works on scalars; one whose lanes do not meet works on vectors of any width.
std::string printNetwork(const kernelgen::Graph& g, const registry::Element& element,
                         const kernelgen::ScheduleChoice& choice);

}   // namespace kfm::dct4
