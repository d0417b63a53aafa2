// Where the values of one row stand, in memory and in the buffers of a group: in the slots of an array.
// A layout is Plain or one of a packed spectrum.
#pragma once

#include <array>

#include "core/packed_layouts.h"

namespace kfm::rows {

// A value after the other.
template <int values>
struct Plain {
    static constexpr int slots = values;
};

template <class Layout>
concept Packed = requires {
    Layout::at(0);
};
template <class Layout>
concept WithZeros = requires {
    Layout::zeros[0];
};

// Slots of a result that hold no value; without any it is slot 0, which is written anyway.
template <class Layout>
constexpr std::array<int, 2> zeroSlots() {
    if constexpr (WithZeros<Layout>) return {Layout::zeros[0], Layout::zeros[1]};
    else return {};
}

}   // namespace kfm::rows
