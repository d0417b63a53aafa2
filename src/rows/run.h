// How the rows of a call go through a kernel: contiguous rows in groups of as many as it takes at a
// time, in code of their own; all others, and what is left over, by any_spacing.h.
#pragma once

#include <type_traits>

#include "kfmgen.h"
#include "rows/any_spacing.h"
#include "rows/group.h"
#include "rows/job.h"
#include "rows/places.h"
#include "rows/strided_row.h"
#include "rows/transpose.h"

namespace kfm::rows {

// Numbers of an element, and their type.
template <class Element>
inline constexpr int width =
    std::is_same_v<Element, Kfm32fc> || std::is_same_v<Element, Kfm64fc> ? 2 : 1;
template <class Element>
using RealOf = std::conditional_t<sizeof(Element) / width<Element> == 4, float, double>;

template <class Real, int rows, int n, class Layout>
auto reader(const Real* buffer) {
    if constexpr (!Packed<Layout>) return PlainReader<Real, rows>{buffer};
    else return PackedReader<Real, rows, n>{{buffer}, buffer + Layout::at(1) * rows,
                                            buffer + Layout::at(n - 1) * rows};
}

template <class Real, int rows, int n, class Layout>
auto writer(Real* buffer) {
    if constexpr (!Packed<Layout>) return PlainWriter<Real, rows>{buffer};
    else return PackedWriter<Real, rows, n>{{buffer}, buffer + Layout::at(1) * rows,
                                            buffer + Layout::at(n - 1) * rows};
}

// One text for all layouts of a spectrum and all spacings.
template <class Transform, class In, class Out, class Real>
[[gnu::noinline]] void transformOutOfLine(In in, Out out, const Real* factor) {
    Transform::run(in, out, factor);
}

template <class Transform, int n, class In, class Out, class Real>
void transformBuffers(const Real* in, Real* out, const Real* factor) {
    transformOutOfLine<Transform>(reader<Real, Transform::rows, n, In>(in),
                                  writer<Real, Transform::rows, n, Out>(out), factor);
}

template <class Transform, int n, class In, class Out, class Element>
void runInLanes(const Job<Element>& job, Single<Element>* single) {
    using Real = RealOf<Element>;
    constexpr int rows = Transform::rows, numbers = width<Element>;
    constexpr int inSlots = In::slots * numbers, outSlots = Out::slots * numbers;
    const Real* factor = chooseScale<Transform::direction>(Transform::scales, job.flag);
    Job<Real> left = onNumbers<Real>(job);
    if constexpr (inSlots >= Block<Real, rows>::columns && outSlots >= Block<Real, rows>::columns)
        if (job.contiguous()) {
            // Of short rows the values stay in registers.
            constexpr bool inRegisters = inSlots <= 16;
            alignas(32) Real in[inSlots * rows], out[outSlots * rows];
            if constexpr (WithZeros<Out>)
                for (const int slot : zeroSlots<Out>())
                    for (int row = 0; row < rows; ++row) out[slot * rows + row] = 0;
            for (; left.rows >= rows; left.advance(rows)) {
                bringInBlocks<rows, inSlots>(left.src, in);
                if constexpr (inRegisters)
                    Transform::run(reader<Real, rows, n, In>(in), writer<Real, rows, n, Out>(out),
                                   factor);
                else transformBuffers<Transform, n, In, Out>(in, out, factor);
                sendOutBlocks<rows, outSlots>(out, left.dst);
            }
            for (; left.rows > 0 && left.rows <= rows / 2; left.advance(1))
                single(reinterpret_cast<const Element*>(left.src.data),
                       reinterpret_cast<Element*>(left.dst.data), job.flag);
        }
    if (left.rows > 0)
        runAnySpacing<rows, numbers>(left, {transformBuffers<Transform, n, In, Out, Real>, factor,
                                            inSlots, outSlots, zeroSlots<Out>()});
}

// Groups of `count` rows as transform(src, distance, dst, distance) of contiguous ones, which rows
// with strides are copied to and from.
template <int inLength, int outLength, int count, class Element, class Transform>
void forEachGroup(Job<Element>& left, Transform transform) {
    const bool contiguous = left.contiguous();
    for (; left.rows >= count; left.advance(count)) {
        const auto [src, srcStride, srcDistance] = left.src;
        const auto [dst, dstStride, dstDistance] = left.dst;
        if (contiguous) {
            transform(src, srcDistance, dst, dstDistance);
            continue;
        }
        Element in[count * inLength], out[count * outLength];
        for (int row = 0; row < count; ++row)
            copyStrided(src + row * srcDistance, srcStride, in + row * inLength, 1, inLength);
        transform(in, inLength, out, outLength);
        for (int row = 0; row < count; ++row)
            copyStrided(out + row * outLength, 1, dst + row * dstDistance, dstStride, outLength);
    }
}

template <class In, class Out, class Element>
void runSingly(Job<Element> left, Single<Element>* single) {
    forEachGroup<In::slots, Out::slots, 1>(
        left, [&](const Element* src, std::ptrdiff_t, Element* dst, std::ptrdiff_t) {
            single(src, dst, left.flag);
        });
}

#ifdef __AVX2__
template <class Transform, int n, class In, class Out>
void runInPairs(Job<Kfm64fc> left, Single<Kfm64fc>* single) {
    const double* factor = chooseScale<Transform::direction>(Transform::scales, left.flag);
    forEachGroup<n, n, 2>(left, [&](const Kfm64fc* src, std::ptrdiff_t srcDistance, Kfm64fc* dst,
                                    std::ptrdiff_t dstDistance) {
        Transform::run(PairReader{&src->re, 2 * srcDistance}, PairWriter{&dst->re, 2 * dstDistance},
                       factor);
    });
    if (left.rows > 0) runSingly<In, Out>(left, single);
}
#endif

}   // namespace kfm::rows
