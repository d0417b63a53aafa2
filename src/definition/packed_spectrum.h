// What the arrays of a transform hold, and the packed layouts of a half spectrum slot by slot.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kfm::definition {

enum class Content { complexSignal, realSignal, ccs, pack, perm };

// The arrays in a family's name: {pack, realSignal} for "DFTInv_PackToR".
struct Contents {
    Content source, destination;
};
Contents contentsOf(std::string_view family);

// One real of a half spectrum: a part of one bin.
struct Slot {
    int bin;
    bool imaginary;

    // The imaginary part of a bin whose values are always real.
    bool alwaysZero(int length) const { return imaginary && (bin == 0 || 2 * bin == length); }
};

// In the order of the array; none for an array that is no half spectrum.
std::vector<Slot> slots(Content array, int length);

std::size_t reals(Content array, int length);

}   // namespace kfm::definition
