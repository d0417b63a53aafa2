// Where the values of one row stand, in memory and in the buffers of a group: values in the order of
// a packed spectrum, as slots of an array.
#pragma once

#include <array>

namespace kfm::rows {

// A value after the other; two of them are a complex element.
struct Plain {
    static constexpr bool packed = false;
    static constexpr int slots(int values) { return values; }
    // Slots of a result that hold no value; slot 0 is written anyway.
    static constexpr std::array<int, 2> zeros(int) { return {}; }
};

// Packed spectra: value 0 stands in slot 0, the last of an even number in slot `last`, the others
// follow each other from slot `first` on.
struct Pack : Plain {
    static constexpr bool packed = true;
    static constexpr int first(int) { return 1; }
    static constexpr int last(int values) { return values - 1; }
};

struct Perm : Pack {
    static constexpr int first(int values) { return values % 2 == 0 ? 2 : 1; }
    static constexpr int last(int) { return 1; }
};

// With the imaginary parts that are always zero: slot 1, and slot n + 1 of an even number.
struct CCS {
    static constexpr bool packed = true;
    static constexpr int slots(int values) { return values % 2 == 0 ? values + 2 : values + 1; }
    static constexpr int first(int) { return 2; }
    static constexpr int last(int values) { return values; }
    static constexpr std::array<int, 2> zeros(int values) {
        return {1, values % 2 == 0 ? values + 1 : 1};
    }
};

}   // namespace kfm::rows
