// How rows stand in an array: one after the other, or side by side as the columns of a table.
// Counted in elements of the array, whatever they are.
#pragma once

namespace kfm::bench {

struct Rows {
    int count = 1;
    bool columns = false;

    int stride() const { return columns ? count : 1; }
    // Of rows of so many values.
    int distance(int values) const { return columns ? 1 : values; }
    const char* layout() const { return columns ? "columns" : "contiguous"; }
};

}   // namespace kfm::bench
