// Between rows in memory and a group's buffer, in which the same value of all rows is one vector.
#pragma once

#include <cstddef>

#include "rows/job.h"
#include "rows/operations.h"

namespace kfm::rows {

// 16 bytes of a row, or in wider vectors of two rows `columns` apart.
template <class Real, bool wide>
struct RowPart {
    using Whole = simd::VectorOf<Real>;

    KFM_OPERATION static Whole load(const Real* row, std::ptrdiff_t) {
        return simd::loadUnaligned<Whole>(row);
    }
    KFM_OPERATION static void store(Real* row, std::ptrdiff_t, Whole v) {
        simd::storeUnaligned(row, v);
    }
};
#ifdef __AVX2__
template <class Real>
struct RowPart<Real, true> {
    using Half = simd::VectorOf<Real>;
    using Whole = typename simd::VectorWith<Real, 32 / sizeof(Real)>::Type;

    KFM_OPERATION static Whole load(const Real* row, std::ptrdiff_t toUpper) {
        return simd::join<0, 0>(simd::asLower(simd::loadUnaligned<Half>(row)),
                                simd::asLower(simd::loadUnaligned<Half>(row + toUpper)));
    }
    KFM_OPERATION static void store(Real* row, std::ptrdiff_t toUpper, Whole v) {
        simd::storeUnaligned(row, simd::lower(v));
        simd::storeUnaligned(row + toUpper, simd::upper(v));
    }
};
#endif

// Blocks of 16 bytes of every row, transposed in registers.
template <class Real, int rows>
struct Block {
    static constexpr int columns = 16 / sizeof(Real);
    using Part = RowPart<Real, (rows > columns)>;
    using Whole = typename Part::Whole;

    KFM_OPERATION static void in(const Real* src, std::ptrdiff_t distance, Real* buffer) {
        Whole v[columns];
#pragma GCC unroll 4
        for (int i = 0; i < columns; ++i) v[i] = Part::load(src + i * distance, columns * distance);
        simd::transpose(v);
#pragma GCC unroll 4
        for (int i = 0; i < columns; ++i) VectorOfRows<Real, rows>::store(buffer + i * rows, v[i]);
    }
    KFM_OPERATION static void out(const Real* buffer, Real* dst, std::ptrdiff_t distance) {
        Whole v[columns];
#pragma GCC unroll 4
        for (int i = 0; i < columns; ++i) v[i] = VectorOfRows<Real, rows>::load(buffer + i * rows);
        simd::transpose(v);
#pragma GCC unroll 4
        for (int i = 0; i < columns; ++i) Part::store(dst + i * distance, columns * distance, v[i]);
    }
};

// Two rows of four floats are two vectors of the buffer at a time.
template <>
struct Block<float, 2> {
    static constexpr int columns = 4;

    KFM_OPERATION static void in(const float* src, std::ptrdiff_t distance, float* buffer) {
        const auto [low, high] = simd::interleaved(load(src), load(src + distance));
        simd::storeUnaligned(buffer, low);
        simd::storeUnaligned(buffer + 4, high);
    }
    KFM_OPERATION static void out(const float* buffer, float* dst, std::ptrdiff_t distance) {
        const auto [first, second] = simd::separated(load(buffer), load(buffer + 4));
        simd::storeUnaligned(dst, first);
        simd::storeUnaligned(dst + distance, second);
    }

private:
    KFM_OPERATION static simd::f32x4 load(const float* p) {
        return simd::loadUnaligned<simd::f32x4>(p);
    }
};

// Rows of two or three floats: 8 bytes of every row, of two rows in one vector.
template <int rows>
struct ShortBlock {
    static constexpr int columns = 2;
    using Half = simd::HalfSingle;
    using Row = std::conditional_t<rows == 2, Half, VectorOfRows<float, rows>>;

    KFM_OPERATION static void in(const float* src, std::ptrdiff_t distance, float* buffer) {
        const simd::f32x4 low = loadTwo(src, distance);
        const simd::f32x4 high = rows == 2 ? low : loadTwo(src + 2 * distance, distance);
        const auto [first, second] = simd::separated(low, high);
        Row::store(buffer, first);
        Row::store(buffer + rows, second);
    }
    KFM_OPERATION static void out(const float* buffer, float* dst, std::ptrdiff_t distance) {
        const auto [low, high] = simd::interleaved(Row::load(buffer), Row::load(buffer + rows));
        storeTwo(dst, distance, low);
        if constexpr (rows == 4) storeTwo(dst + 2 * distance, distance, high);
    }

private:
    KFM_OPERATION static simd::f32x4 loadTwo(const float* row, std::ptrdiff_t distance) {
        return simd::select<0, 1, 4, 5>(Half::load(row), Half::load(row + distance));
    }
    KFM_OPERATION static void storeTwo(float* row, std::ptrdiff_t distance, simd::f32x4 v) {
        Half::store(row, v);
        Half::store(row + distance, simd::select<2, 3, 2, 3>(v, v));
    }
};

template <class Real, int rows, int slots>
struct BlockFor {
    using Type = Block<Real, rows>;
};
template <int rows, int slots>
requires(slots < 4) struct BlockFor<float, rows, slots> {
    using Type = ShortBlock<rows>;
};

// Blocks at 0, columns, 2 * columns ...; the last one ends where the row does.
template <int slots, int columns, class Body>
KFM_OPERATION void forEachBlock(Body body) {
#pragma GCC unroll 4
    for (int at = 0; at + columns <= slots; at += columns) body(at);
    if constexpr (slots % columns != 0) body(slots - columns);
}

template <int rows, int slots, class Real>
KFM_OPERATION void bringInBlocks(Side<const Real> src, Real* buffer) {
    using RowBlock = typename BlockFor<Real, rows, slots>::Type;
    forEachBlock<slots, RowBlock::columns>(
        [=](int at) KFM_INLINE { RowBlock::in(src.data + at, src.distance, buffer + at * rows); });
}

template <int rows, int slots, class Real>
KFM_OPERATION void sendOutBlocks(const Real* buffer, Side<Real> dst) {
    using RowBlock = typename BlockFor<Real, rows, slots>::Type;
    forEachBlock<slots, RowBlock::columns>(
        [=](int at) KFM_INLINE { RowBlock::out(buffer + at * rows, dst.data + at, dst.distance); });
}

}   // namespace kfm::rows
