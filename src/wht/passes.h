// The passes of the Walsh-Hadamard transform over memory. `From` and `To` are the memory operations
// at the two ends, `finish` is applied to each vector before it is stored.
#pragma once

#include <bit>

#include "wht/blocking.h"
#include "wht/register_block.h"

namespace kfm::wht {

// The widest vectors of an element type, and log2 of their lanes.
template <class Real>
using Widest = simd::VectorUpTo<Real, 8>;
template <class Real>
inline constexpr int laneOrder = std::countr_zero(sizeof(Widest<Real>) / sizeof(Real));

// For vectors wider than the alignment that arrays have.
template <class Real>
struct AnyAddress {
    KFM_INLINE static Widest<Real> load(const Real* p) {
        return simd::loadUnaligned<Widest<Real>>(p);
    }
    KFM_INLINE static void store(Real* p, Widest<Real> v) { simd::storeUnaligned(p, v); }
};

// How vectors of 2^order elements are moved where `Memory` moves 16 bytes. Two single-precision
// elements fill half of a vector.
template <class Real, int order, class Memory>
using Access =
    std::conditional_t<(sizeof(Real) << order < 16), simd::HalfSingle,
                       std::conditional_t<(sizeof(Real) << order == 16), Memory, AnyAddress<Real>>>;

// Arrays that start at a multiple of 16.
template <class Real>
using BufferAccess =
    Access<Real, laneOrder<Real>,
           std::conditional_t<sizeof(Real) == 8, simd::AlignedDouble, simd::AlignedSingle>>;

template <class Vector>
struct Scale {
    Vector factor;
    KFM_INLINE Vector operator()(Vector v) const { return simd::mul(v, factor); }
};
template <class Vector>
Scale(Vector) -> Scale<Vector>;   // clang 14 does not find it by itself

struct Unscaled {
    template <class Vector>
    KFM_INLINE Vector operator()(Vector v) const {
        return v;
    }
};

// One block of 2^order neighbouring elements, straight through. Reads all before it writes.
template <int order, class From, class To, class Real, class Finish>
KFM_INLINE inline void transformBlock(const Real* src, Real* dst, Finish finish) {
    constexpr int lanes = std::min(order, laneOrder<Real>);
    transformVectors<order - lanes>(
        [=](int i)
            KFM_INLINE { return transformLanes<lanes, Real>(From::load(src + (i << lanes))); },
        [=](int i, auto v) KFM_INLINE { To::store(dst + (i << lanes), finish(v)); });
}

// Each of 2^across neighbouring blocks.
template <int order, int across, class From, class To, class Real>
KFM_INLINE inline void transformBlocks(const Real* src, Real* dst) {
    for (int begin = 0; begin < 1 << (order + across); begin += 1 << order)
        transformBlock<order, From, To>(src + begin, dst + begin, Unscaled());
}

// Across 2^order blocks of 2^block elements: elements at the same place in all blocks, as many
// places in a step as a vector has lanes.
template <int block, int order, class From, class To, class Real, class Finish>
KFM_INLINE inline void transformAcross(const Real* src, Real* dst, Finish finish) {
    for (int column = 0; column < 1 << block; column += 1 << laneOrder<Real>)
        transformVectors<order>(
            [=](int i) KFM_INLINE { return From::load(src + column + (i << block)); },
            [=](int i, auto v) KFM_INLINE { To::store(dst + column + (i << block), finish(v)); });
}

// All passes. `main` and `scratch` are the areas of the work buffer.
template <Blocking blocking, class Memory, class Real, class Finish>
KFM_INLINE inline void transformInPasses(const Real* src, Real* dst, Finish finish, Real* main,
                                         [[maybe_unused]] Real* scratch) {
    using Buffer = BufferAccess<Real>;
    constexpr int block = blocking.block, across = blocking.across, chunk = blocking.chunk();
    if constexpr (!blocking.threePasses()) {
        transformBlocks<block, across, Memory, Buffer>(src, main);
        transformAcross<block, across, Buffer, Memory>(main, dst, finish);
    } else {
        for (int begin = 0; begin < 1 << blocking.order(); begin += 1 << chunk) {
            transformBlocks<block, across, Memory, Buffer>(src + begin, scratch);
            transformAcross<block, across, Buffer, Buffer>(scratch, main + begin, Unscaled());
        }
        transformAcross<chunk, blocking.chunks, Buffer, Memory>(main, dst, finish);
    }
}

}   // namespace kfm::wht
