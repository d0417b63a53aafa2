// Groups of rows with any strides and distances, and groups that are not full: one text for the
// kernels of all lengths.
#pragma once

#include <array>
#include <cstddef>

#include "rows/job.h"
#include "rows/operations.h"

namespace kfm::rows {

// The longest row in values that have a vector: 64 complex elements of two numbers.
inline constexpr int mostSlots = 128;

// A kernel to a buffer, from another or from columns, `step` values from one vector to the next; either
// side is so many vectors. Two of the results stay zero.
template <class Value>
struct BufferKernel {
    void (*run)(const Value* in, std::ptrdiff_t step, Value* out, const RealOf<Value>* factor);
    const RealOf<Value>* factor;
    bool readsColumns;
    int inSlots, outSlots;
    std::array<int, 2> zeros;
};

// `slots`: values of a row that have a vector, `perElement` of an element.
template <int rows, int perElement, class Value>
void runAnySpacing(Job<Value> left, const BufferKernel<Value>& kernel);

// Neighbouring rows, between their places and a buffer. Of elements with two numbers each is a vector of
// its own there.
template <int rows, int perElement, class Value>
KFM_OPERATION void bringInColumns(Side<const Value> src, int slots, Value* buffer) {
    using Row = VectorOfRows<Value, rows>;
    for (int slot = 0; slot < slots; slot += perElement, src.data += src.stride) {
        Value* const to = buffer + slot * rows;
        if constexpr (perElement == 1) {
            Row::storeAnywhere(to, Row::loadAnywhere(src.data));
        } else {
            const auto [re, im] =
                simd::separated(Row::loadAnywhere(src.data), Row::loadAnywhere(src.data + rows));
            Row::storeAnywhere(to, re);
            Row::storeAnywhere(to + rows, im);
        }
    }
}

template <int rows, int perElement, class Value>
KFM_OPERATION void sendOutColumns(const Value* buffer, int slots, Side<Value> dst) {
    using Row = VectorOfRows<Value, rows>;
    for (int slot = 0; slot < slots; slot += perElement, dst.data += dst.stride) {
        const Value* const from = buffer + slot * rows;
        if constexpr (perElement == 1) {
            Row::storeAnywhere(dst.data, Row::loadAnywhere(from));
        } else {
            const auto [low, high] =
                simd::interleaved(Row::loadAnywhere(from), Row::loadAnywhere(from + rows));
            Row::storeAnywhere(dst.data, low);
            Row::storeAnywhere(dst.data + rows, high);
        }
    }
}

}   // namespace kfm::rows
