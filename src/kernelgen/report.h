// What a kernel costs, and dumps of its graph for people.
#pragma once

#include <string>
#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

// Vector instructions of one transform, the products by the scale factor not counted.
struct OperationCounts {
    int additions = 0, multiplications = 0, shuffles = 0, signChanges = 0, loads = 0, stores = 0;
    int conversions = 0;   // between single and double precision
    int moves = 0;         // between the halves of vectors of 32 bytes
    int pairs = 0;         // those of all but moves and stores that work on both halves

    void add(Op op);
};

OperationCounts countOperations(const Graph& g);

// Scalar products by constants other than 2, lane by lane, of those that an output depends on.
int countScalarProducts(const Graph& g);

// How many values an order must fetch again with so many registers, when the register whose value
// is needed latest is given up (L. Belady, 1966). Compilers need more. What each operation is
// computed from comes as its operands' numbers.
int countReloads(const std::vector<std::vector<int>>& operands, const std::vector<int>& order,
                 int registers);

// "1, 2, 3".
std::string listOf(const std::vector<int>& numbers);

// The nodes in the given order, a line each.
std::string dumpText(const Graph& g, const std::vector<int>& order);
// The graph in the language of graphviz.
std::string dumpDot(const Graph& g, const std::vector<int>& order);

}   // namespace kfm::kernelgen
