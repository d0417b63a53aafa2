// Contiguous rows beyond the nearest caches. Processors foresee one row after the other, but not
// several that take turns, and of single long ones not all: the lines of the next rows are asked for
// while those before them are computed.
#pragma once

#include "rows/job.h"
#include "simd/operation.h"

namespace kfm::rows {

// What a call may read and write before it is worth while to ask, and which rows need not be asked
// for: of one line at most, which follow each other closely in any order.
inline constexpr std::ptrdiff_t cachedBytes = 128 * 1024;
inline constexpr int lineBytes = 64;

template <class In, class Out, class Value>
bool isFar(const Job<Value>& job) {
    return In::slots * sizeof(Value) > lineBytes &&
           job.rows > cachedBytes / std::ptrdiff_t{(In::slots + Out::slots) * sizeof(Value)};
}

template <int slots, class Value>
KFM_OPERATION void askFor(const Side<Value>& side, int first, int rows) {
    constexpr int line = lineBytes / sizeof(Value);
    const Value* row = side.data + first * side.distance;
    for (int i = 0; i < rows; ++i, row += side.distance)
        for (int at = 0; at < slots; at += line) __builtin_prefetch(row + at);
}

// Before so many rows are transformed: those behind them, if there are as many.
template <class In, class Out, class Value>
KFM_OPERATION void lookAhead(const Job<Value>& left, int rows) {
    if (left.rows < 2 * rows) return;
    askFor<In::slots>(left.src, rows, rows);
    askFor<Out::slots>(left.dst, rows, rows);
}

}   // namespace kfm::rows
