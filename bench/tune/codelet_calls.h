// How a codelet of the DCT-IV is called to be timed: from one array to another, like a kernel. What
// it takes beside arrays are the row lengths and counts that lengths are planned with; a table of
// cosines and sines may hold anything. The tuner puts this behind each candidate's source.
#pragma once

#include <algorithm>

#include "dct4/codelets.h"
#include "kfmgen.h"

namespace kfm::tune {

// Elements of either array: results of the longest output stage, and their table.
inline constexpr int codeletArrayLength = 2 * 2048;

template <class Real, int n>
void fixedTransform(const Real* src, Real* dst) {
    dct4::fixedTransform<Real, n>(src, dst);
}

template <class Real, int m>
void inputStage(const Real* src, Real* w) {
    if constexpr (m > 8) dct4::inputStage<Real, m>(src, w, m / 2);
    if constexpr (m < 64) dct4::inputStage<Real, m>(src, w, m < 8 ? 8 : m);
}

template <class Real, int m>
void inputBlock(const Real* src, Real* rows) {
    const Real* const last = src + (m / 2 * dct4::rowLength - 1);
    dct4::inputBlock<Real, m>(src, last, dct4::rowLength, rows);
}

// In place: on a copy, so that values stay bounded.
template <class Real, int divisor, auto stage>
void inPlace(const Real* src, Real* rows) {
    std::copy_n(src, divisor * 2 * dct4::rowLength, rows);
    stage(rows, src, 1);
}
template <class Real, int divisor>
void twiddleStage(const Real* src, Real* rows) {
    inPlace<Real, divisor, dct4::twiddleStage<Real, divisor>>(src, rows);
}
template <class Real, int divisor>
void twiddleStageRoot(const Real* src, Real* rows) {
    inPlace<Real, divisor, dct4::twiddleStageRoot<Real, divisor>>(src, rows);
}

template <class Real, int d>
void outputStage(const Real* src, Real* dst) {
    constexpr int shortest = std::max(8, d) * d;
    for (const int len : {shortest, 2 * shortest})
        dct4::outputStage<Real, d>(src, src + len, dst, len);
}

}   // namespace kfm::tune

#define KFM_CALL_CODELET(function, Real, size)                                                    \
    extern "C" [[gnu::visibility("default")]] KfmStatus calledCodelet(const void* src, void* dst, \
                                                                      int) {                      \
        kfm::tune::function<Real, size>(static_cast<const Real*>(src), static_cast<Real*>(dst));  \
        return kfmOk;                                                                             \
    }
