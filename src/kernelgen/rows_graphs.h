// A graph for one transform as a graph for several rows at once, of the same operations on every
// value: the bits of a row are those of the single transform.
#pragma once

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

// Every lane of every operation as an operation of its own on a vector of `rows`, whose lanes are
// other rows. Selections become a choice of operands, changes of sign mostly sums and differences.
// Loads and outputs are numbered by lanes: two for a complex element.
Graph spreadGraph(const Graph& g, int rows);

// Two rows in the halves of vectors of twice as many lanes: the graph joined with itself. Loads and
// outputs keep their numbers, the upper half's are `upperRow` more.
Graph twoRowsGraph(const Graph& g, int upperRow);

}   // namespace kfm::kernelgen
