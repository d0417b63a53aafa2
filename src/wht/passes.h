// The passes of the Walsh-Hadamard transform over memory. `From` and `To` are the memory operations
// at the two ends, `finish` is applied to each vector before it is stored.
#pragma once

#include "wht/blocking.h"
#include "wht/register_block.h"

namespace kfm::wht {

// What belongs to an element type: log2 of the lanes of a vector, and the memory operations on
// arrays that start at a multiple of 16.
template <class Real>
struct Lanes;
template <>
struct Lanes<Kfm32f> {
    static constexpr int order = 2;
    using Aligned = simd::AlignedSingle;
};
template <>
struct Lanes<Kfm64f> {
    static constexpr int order = 1;
    using Aligned = simd::AlignedDouble;
};

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
    constexpr int lanes = std::min(order, Lanes<Real>::order);
    transformVectors<order - lanes>(
        [=](int i) KFM_INLINE { return transformLanes<lanes>(From::load(src + (i << lanes))); },
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
    for (int column = 0; column < 1 << block; column += 1 << Lanes<Real>::order)
        transformVectors<order>(
            [=](int i) KFM_INLINE { return From::load(src + column + (i << block)); },
            [=](int i, auto v) KFM_INLINE { To::store(dst + column + (i << block), finish(v)); });
}

// All passes. `main` and `scratch` are the areas of the work buffer.
template <Blocking blocking, class Memory, class Real, class Finish>
KFM_INLINE inline void transformInPasses(const Real* src, Real* dst, Finish finish, Real* main,
                              [[maybe_unused]] Real* scratch) {
    using Buffer = typename Lanes<Real>::Aligned;
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
