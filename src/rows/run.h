// How the rows of a call go through a kernel: contiguous rows in groups of as many as it takes at a
// time, in code of their own; all others, and what is left over, by any_spacing.h.
#pragma once

#include <type_traits>

#include "kfmgen.h"
#include "rows/any_spacing.h"
#include "rows/group.h"
#include "rows/job.h"
#include "rows/places.h"
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
    if constexpr (!Layout::packed) return PlainReader<Real, rows>{buffer};
    else return PackedReader<Real, rows, n>{{buffer}, buffer + Layout::first(n) * rows,
                                            buffer + Layout::last(n) * rows};
}

template <class Real, int rows, int n, class Layout>
auto writer(Real* buffer) {
    if constexpr (!Layout::packed) return PlainWriter<Real, rows>{buffer};
    else return PackedWriter<Real, rows, n>{{buffer}, buffer + Layout::first(n) * rows,
                                            buffer + Layout::last(n) * rows};
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
KfmStatus runInLanes(const Job<Element>& job, Single<Element>* single) {
    using Real = RealOf<Element>;
    constexpr int rows = Transform::rows, numbers = width<Element>;
    constexpr int inSlots = In::slots(n * numbers), outSlots = Out::slots(n * numbers);
    const Real* factor = chooseScale<Transform::direction>(Transform::scales, job.flag);
    Remaining<Real> left(job, numbers);
    if constexpr (inSlots >= Block<Real, rows>::columns && outSlots >= Block<Real, rows>::columns)
        if (job.srcStride == 1 && job.dstStride == 1) {
            // Of short rows the values stay in registers.
            constexpr bool inRegisters = inSlots <= 16;
            alignas(32) Real in[inSlots * rows], out[outSlots * rows];
            if constexpr (Out::packed)
                for (const int slot : Out::zeros(n))
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
                                            inSlots, outSlots, Out::zeros(n)});
    return kfmOk;
}

// Rows of elements, moved to contiguous rows and back.
template <int inLength, int outLength, int count, class Element, class Transform>
void throughCopies(const Job<Element>& left, Transform transform) {
    Element in[count * inLength], out[count * outLength];
    for (int row = 0; row < count; ++row)
        for (int k = 0; k < inLength; ++k)
            in[row * inLength + k] = left.src[k * left.srcStride + row * left.srcDistance];
    transform(in, inLength, out, outLength);
    for (int row = 0; row < count; ++row)
        for (int k = 0; k < outLength; ++k)
            left.dst[k * left.dstStride + row * left.dstDistance] = out[row * outLength + k];
}

template <class Element>
void advance(Job<Element>& left, int count) {
    left.rows -= count;
    if (left.rows == 0) return;   // there may be no address behind the last row
    left.src += count * left.srcDistance;
    left.dst += count * left.dstDistance;
}

// Groups of `count` rows as transform(src, distance, dst, distance) of contiguous ones.
template <int inLength, int outLength, int count, class Element, class Transform>
void forEachGroup(Job<Element>& left, Transform transform) {
    const bool contiguous = left.srcStride == 1 && left.dstStride == 1;
    for (; left.rows >= count; advance(left, count)) {
        if (contiguous) transform(left.src, left.srcDistance, left.dst, left.dstDistance);
        else throughCopies<inLength, outLength, count>(left, transform);
    }
}

template <int n, class In, class Out, class Element>
KfmStatus runSingly(Job<Element> left, Single<Element>* single) {
    forEachGroup<In::slots(n), Out::slots(n), 1>(
        left, [&](const Element* src, std::ptrdiff_t, Element* dst, std::ptrdiff_t) {
            single(src, dst, left.flag);
        });
    return kfmOk;
}

#ifdef __AVX2__
template <class Transform, int n, class In, class Out>
KfmStatus runInPairs(Job<Kfm64fc> left, Single<Kfm64fc>* single) {
    const double* factor = chooseScale<Transform::direction>(Transform::scales, left.flag);
    forEachGroup<n, n, 2>(left, [&](const Kfm64fc* src, std::ptrdiff_t srcDistance, Kfm64fc* dst,
                                 std::ptrdiff_t dstDistance) {
        Transform::run(PairReader(src, srcDistance), PairWriter{dst, dstDistance}, factor);
    });
    return left.rows == 0 ? kfmOk : runSingly<n, In, Out>(left, single);
}
#endif

}   // namespace kfm::rows
