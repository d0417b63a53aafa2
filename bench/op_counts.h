// The operations of each kernel in vector instructions, from the table of `kernelgen counts`.
#pragma once

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>

#include "registry/registry.h"

namespace kfm::bench {

struct OpCounts {
    int additions, multiplies, shuffles;
};

// A Walsh-Hadamard transform: one addition for each vector and order, one product by the factor;
// within vectors, one shuffle beside the addition.
inline OpCounts countsOfOrder(int order, const registry::Element& element) {
    const int lanesOrder = element.doublePrecision ? 1 : 2;
    const int vectors = order > lanesOrder ? 1 << (order - lanesOrder) : 1;
    return {order * vectors, vectors, std::min(order, lanesOrder) * vectors};
}

// By kernel source, length and element type: {"DFT_CToC", 16, "32fc"}.
using OpCountTable = std::map<std::tuple<std::string, int, std::string>, OpCounts>;

// A row is a key and the counts in this order; the lines above the rows do not parse as such.
inline OpCountTable readOpCounts(const std::string& path) {
    OpCountTable table;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        std::string kernels, element;
        int length;
        OpCounts counts;
        if (fields >> kernels >> length >> element >> counts.additions >> counts.multiplies >>
            counts.shuffles)
            table[{kernels, length, element}] = counts;
    }
    return table;
}

}   // namespace kfm::bench
