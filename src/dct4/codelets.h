// The arithmetic of the DCT-IV: what the stages of a plan call, once they know where their data
// are. Plain functions of pointers and sizes; nothing here knows a plan or allocates.
//
// Real is float or double. Only the instantiations that a comment names exist. Work arrays and
// tables are aligned to 16 bytes; the caller's arrays (`src`, `dst`, `front`, `back`) to an
// element.
#pragma once

#include <cstddef>

namespace kfm::dct4 {

// Of w, wherever an input stage recurses; that is, for all m > 64.
inline constexpr int rowLength = 32;

// y[k] = sum of x[i] cos(pi (2i+1)(2k+1) / 4n) for n = 2, 4, 8, 16, 32. src == dst works.
template <class Real, int n>
void fixedTransform(const Real* src, Real* dst);

// The input stage of a transform of len = m*d elements, for m = 2, 4, 8, 16, 32, 64: all of `src`
// is read, all of `w` is written (len elements; not the caller's arrays). `d` is a multiple of
// four; from m = 8 up it is m or m/2, for m = 64 it is 32. Sub-transform r has the inputs
// a_k = src[2dk + r] and b_k = src[len-1-2dk-r], k < m/2, and with
//     G(p) = sum of (a_k - i b_k) exp(i pi k (4p+1) / m),    p < m/2,
// column r of w, whose row length is d, receives
//     Re G(p), Im G(p)     in rows 4p, 4p+1           for p < m/4,
//     Re G(p), -Im G(p)    in rows 2m-4p-2, 2m-4p-1   for the others.
template <class Real, int m>
void inputStage(const Real* src, Real* w, int d);

// The same sums G inside a recursion, m = 2, ..., 64, for all columns of w: column j < 32 has
// a_k = front[k*step + j] and b_k = back[-k*step - j]; `rows` receives m rows in natural order,
// Re G(p) in row 2p and Im G(p) in row 2p+1.
template <class Real, int m>
void inputBlock(const Real* front, const Real* back, std::ptrdiff_t step, Real* rows);

// Joins d' = 2, 4, 8, 16, 32 interleaved sub-transforms of M' = `blockRows` complex rows to one of
// M'd', in place, in all columns. Block s is complex rows sM' .. sM'+M'-1 of `rows` (real part,
// then imaginary part). `table` holds M' groups of d' pairs cos, sin, of the angle
// pi s (4p'+1) / (2 M'd') for pair s of group p'. Reads complex rows sM'+p', multiplies by the
// pairs and writes to complex row M't+p' the sum over s of each with exp(2 pi i st/d').
template <class Real, int divisor>
void twiddleStage(Real* rows, const Real* table, int blockRows);

// The same at the root of a recursion, where the upper half of the results is conjugated.
template <class Real, int divisor>
void twiddleStageRoot(Real* rows, const Real* table, int blockRows);

// The output stage for d = 4, 8, 16, 32: reads w as inputStage leaves it, or twiddleStageRoot
// where len/d > 64, and all of `table`
// (len elements: element (block i, column c, j) at 8di + 4c + j is the cosine, for odd c the sine,
// of pi (2q+1)(2r+1) / 4len with q = 4i+j, r = c/2) and writes all of `dst`, which is not w. `len`
// is a multiple of 8d, from d = 16 up of 16d.
template <class Real, int d>
void outputStage(const Real* w, const Real* table, Real* dst, int len);

// The transform of an odd length, 1 modulo 32. `table` holds cos(pi (8j-len) / 4len) for
// j < len; `scratch` takes len - 1 elements, aligned to 16 bytes. src == dst works.
template <class Real>
void oddTransform(const Real* src, Real* dst, int len, const Real* table, Real* scratch);

}   // namespace kfm::dct4
