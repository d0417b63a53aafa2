// What the generated codelets stand on: vector operations, and reading and writing rows.
#pragma once

#include <cstddef>
#include <type_traits>

#include "dct4/codelets.h"
#include "simd/launder.h"
#include "simd/reals.h"

namespace kfm::dct4 {

using namespace simd;

// Columns of a stage do not meet, so any width gives the same bits.
template <class Real>
inline constexpr int lanes = vectorBytes / static_cast<int>(sizeof(Real));

template <class Real, int L>
using LanesOf = typename VectorWith<Real, L>::Type;
template <class Real>
using StageVector = LanesOf<Real, lanes<Real>>;

// The lanes for a number of rows or columns that is a multiple of four.
template <class Real>
constexpr int lanesFor(int count) {
    return count % lanes<Real> == 0 ? lanes<Real> : 4;
}

// A row of the generated constants, which fills 16 bytes.
template <class Vector, class Real>
[[gnu::always_inline]] inline Vector constantRow(const Real* rows, int index) {
    if constexpr (sizeof(Vector) == 16) return constant(rows, index);
    else return twice(constant(rows, index));
}

// Addresses base + i*distance for i < count known to the compiler, in the form that an operand of
// an instruction takes: a pointer for every eight steps, to which 1, 2, 4 or 8 times a register
// that holds an odd multiple is added. Left alone, the compiler computes each address by itself.
template <class Real, int count>
class Strided {
public:
    Strided(Real* base, std::ptrdiff_t distance) {
        const std::ptrdiff_t bytes = distance * static_cast<std::ptrdiff_t>(sizeof(Real));
        for (int i = 0; i < pointers; ++i) {
            base_[i] = base + 8 * i * distance;
            asm("" : "+r"(base_[i]));
        }
        for (int i = 0; i < 4; ++i) {
            odd_[i] = (2 * i + 1) * bytes;
            if (2 * i + 1 < count) asm("" : "+r"(odd_[i]));
        }
    }

    [[gnu::always_inline]] Real* operator[](int i) const {
        constexpr int oddPart[] = {0, 1, 1, 3, 1, 5, 3, 7}, scale[] = {0, 1, 2, 1, 4, 1, 2, 1};
        auto* address = reinterpret_cast<Byte*>(base_[i / 8]);
        return reinterpret_cast<Real*>(address + scale[i % 8] * odd_[oddPart[i % 8] / 2]);
    }

private:
    using Byte = std::conditional_t<std::is_const_v<Real>, const char, char>;
    static constexpr int pointers = (count + 7) / 8;
    Real* base_[pointers];
    std::ptrdiff_t odd_[4];
};

// Two vectors of 16 bytes in one; only the first of them where that is all it holds.
template <class Real, int L>
LanesOf<Real, L> loadParts(const Real* low, const Real* high) {
    using Part = VectorOf<Real>;
    if constexpr (sizeof(LanesOf<Real, L>) == sizeof(Part)) return loadAligned<Part>(low);
    else return join<0, 0>(asLower(loadAligned<Part>(low)), asLower(loadAligned<Part>(high)));
}

// Numbered slots as vectors a fixed distance apart; one behind the other where they are read.
template <class Real, int L = lanes<Real>>
struct RowReader {
    const Real* first;

    LanesOf<Real, L> load(int row) const { return loadAligned<LanesOf<Real, L>>(first + row * L); }
};

template <class Real, int L = lanes<Real>>
struct RowWriter {
    Real* first;
    std::ptrdiff_t distance;

    void store(int row, LanesOf<Real, L> v) const { storeAligned(first + row * distance, v); }
};

// Elements that lie side by side, between places of any alignment.
template <class Real, int count>
void copyElements(const Real* from, Real* to) {
#pragma GCC unroll 16
    for (int i = 0; i < count; i += lanes<Real>)
        storeUnaligned(to + i, loadUnaligned<StageVector<Real>>(from + i));
}

// The last of them first; the destination is aligned.
template <class Real, int count>
void copyReversed(const Real* from, Real* to) {
    constexpr int L = lanes<Real>;
#pragma GCC unroll 16
    for (int i = 0; i < count; i += L)
        storeAligned(to + i, reverse(loadUnaligned<StageVector<Real>>(from + (count - L - i))));
}

}   // namespace kfm::dct4
