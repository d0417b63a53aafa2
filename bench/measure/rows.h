// How rows stand in an array: one after the other, or side by side as the columns of a table.
// Counted in elements of the array, whatever they are.
#pragma once

#include <string_view>

namespace kfm::bench {

struct Rows {
    int count = 1;
    bool columns = false;

    int stride() const { return columns ? count : 1; }
    // Of rows of so many values.
    int distance(int values) const { return columns ? 1 : values; }
    const char* layout() const { return columns ? "columns" : "contiguous"; }
};

// Elements of a row on each side. Only the complex pairs of CCS are more than the signal's.
struct Widths {
    Widths(std::string_view family, int length) {
        const int pairs = 2 * (length / 2 + 1);
        source = family.ends_with("_CCSToR") ? pairs : length;
        destination = family.ends_with("_RToCCS") ? pairs : length;
    }
    int source, destination;
};

}   // namespace kfm::bench
