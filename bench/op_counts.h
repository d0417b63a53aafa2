// The operations of each kernel in vector instructions, from the table of `kernelgen counts`.
#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>

namespace kfm::bench {

struct OpCounts {
    int additions, multiplies, shuffles;
};

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
