// How the rows of a call go through a kernel: contiguous rows, and rows with any other spacing, in
// groups of as many as it takes at a time or one after the other.
#pragma once

#include "kfmgen.h"
#include "rows/ahead.h"
#include "rows/any_spacing.h"
#include "rows/group.h"
#include "rows/job.h"
#include "rows/places.h"
#include "rows/strided_row.h"
#include "rows/transpose.h"

namespace kfm::rows {

// One text for all layouts of a spectrum and all spacings.
template <class Transform, class In, class Out, class Real>
[[gnu::noinline]] void transformOutOfLine(In in, Out out, const Real* factor) {
    Transform::run(in, out, factor);
}

// Whether a kernel reads columns where they are. From a packed spectrum, which has two places of its
// own, that was measured to cost more than a copy; the numbers of an element have to be separated.
template <class Transform, class In>
inline constexpr bool readsColumns = !Packed<In> && Transform::perElement == 1;

// The step of a side that may be columns; of any other it is that of buffers.
template <bool mayBeColumns, int rows>
auto stepOf(std::ptrdiff_t step) {
    if constexpr (mayBeColumns) return step;
    else return Known<rows>();
}

template <class Transform, int n, class In, class Out, class Value>
void toBuffer(const Value* in, std::ptrdiff_t step, Value* out, const RealOf<Value>* factor) {
    constexpr int rows = Transform::rows;
    transformOutOfLine<Transform>(
        reader<In, rows, n>(in, stepOf<readsColumns<Transform, In>, rows>(step)),
        writer<Out, rows, n>(out, stepOf<Transform::overlapping, rows>(rows)), factor);
}

// Values of short rows stay in registers.
template <int slots>
inline constexpr bool inRegisters = slots <= 16;

// The buffers of a group of rows and the kernel between them. In Transform::Value a kernel computes
// and a vector has lanes: the numbers of an element, or elements.
template <class Transform, int n, class In, class Out>
class Group {
public:
    using Value = typename Transform::Value;
    static constexpr int rows = Transform::rows;
    static constexpr int perElement = Transform::perElement;
    static constexpr int inSlots = In::slots * perElement, outSlots = Out::slots * perElement;

    explicit Group(int flag)
        : factor_(chooseScale<Transform::direction>(Transform::scales, flag)) {}

    void contiguous(Job<Value>& left) const {
        alignas(32) Value in[inSlots * rows], out[outSlots * rows];
        setZeros(out);
        const bool far = isFar<Plain<inSlots>, Plain<outSlots>>(left);
        for (; left.rows >= rows; left.advance(rows)) {
            bringInBlocks<rows, inSlots>(left.src, in);
            if (far) lookAhead<Plain<inSlots>, Plain<outSlots>>(left, rows);
            if constexpr (inRegisters<inSlots>)
                Transform::run(reader<In, rows, n>(in, Known<rows>()),
                               writer<Out, rows, n>(out, Known<rows>()), factor_);
            else toBuffer<Transform, n, In, Out>(in, rows, out, factor_);
            sendOutBlocks<rows, outSlots>(out, left.dst);
        }
    }

    void anySpacing(Job<Value> left) const {
        if constexpr (inRegisters<inSlots> || Transform::overlapping)
            if (left.src.distance == perElement && left.dst.distance == perElement) columns(left);
        if (left.rows > 0)
            runAnySpacing<rows, perElement>(left, {toBuffer<Transform, n, In, Out, Value>, factor_,
                                                   readsColumns<Transform, In>, inSlots, outSlots,
                                                   zeroSlots<Out>()});
    }

private:
    static void setZeros(Value* out) {
        if constexpr (WithZeros<Out>)
            for (const int slot : zeroSlots<Out>())
                for (int row = 0; row < rows; ++row) out[slot * rows + row] = 0;
    }

    // Both sides may be the same: all is read before anything is written there, by kernels that do so
    // themselves, and by others because they write to a buffer.
    void columns(Job<Value>& left) const {
        if constexpr (Transform::overlapping) {
            for (; left.rows >= rows; left.advance(rows)) {
                const auto from = reader<In, rows, n>(left.src.data, left.src.stride);
                const auto to = writer<Out, rows, n>(left.dst.data, left.dst.stride);
                if constexpr (inRegisters<inSlots>) Transform::run(from, to, factor_);
                else transformOutOfLine<Transform>(from, to, factor_);
            }
        } else {
            alignas(32) Value in[inSlots * rows], out[outSlots * rows];
            const auto to = writer<Out, rows, n>(out, Known<rows>());
            setZeros(out);
            for (; left.rows >= rows; left.advance(rows)) {
                if constexpr (perElement == 1) {
                    Transform::run(reader<In, rows, n>(left.src.data, left.src.stride), to,
                                   factor_);
                } else {
                    bringInColumns<rows, perElement>(left.src, inSlots, in);
                    Transform::run(reader<In, rows, n>(in, Known<rows>()), to, factor_);
                }
                sendOutColumns<rows, perElement>(out, outSlots, left.dst);
            }
        }
    }

    const RealOf<Value>* factor_;
};

template <class In, class Out, class Element>
void contiguousSingly(Job<Element> left, Single<Element>* single) {
    const bool far = isFar<In, Out>(left);
    for (; left.rows > 0; left.advance(1)) {
        if (far) lookAhead<In, Out>(left, 1);
        single(left.src.data, left.dst.data, left.flag);
    }
}

template <class Transform, int n, class In, class Out, class Element>
void contiguousInLanes(const Job<Element>& job, Single<Element>* single) {
    const Group<Transform, n, In, Out> group(job.flag);
    auto left = onNumbers<typename Transform::Value>(job);
    group.contiguous(left);
    for (; left.rows > 0 && left.rows <= group.rows / 2; left.advance(1))
        single(reinterpret_cast<const Element*>(left.src.data),
               reinterpret_cast<Element*>(left.dst.data), job.flag);
    if (left.rows > 0) group.anySpacing(left);
}

#ifdef __AVX2__
template <class Transform, int n, class In, class Out>
void contiguousInPairs(Job<Kfm64fc> left, Single<Kfm64fc>* single) {
    const double* factor = chooseScale<Transform::direction>(Transform::scales, left.flag);
    const bool far = isFar<In, Out>(left);
    for (; left.rows >= 2; left.advance(2)) {
        if (far) lookAhead<In, Out>(left, 2);
        Transform::run(PairReader{{left.src.data, {}}, left.src.distance},
                       PairWriter{{left.dst.data, {}}, left.dst.distance}, factor);
    }
    contiguousSingly<In, Out>(left, single);
}
#endif

template <class Transform, int n, class In, class Out, class Element>
void spacedInGroups(const Job<Element>& job) {
    Group<Transform, n, In, Out>(job.flag).anySpacing(onNumbers<typename Transform::Value>(job));
}

template <class In, class Out, class Element>
void spacedSingly(Job<Element> left, Single<Element>* single) {
    Element in[In::slots], out[Out::slots];
    for (; left.rows > 0; left.advance(1)) {
        copyStrided(left.src.data, left.src.stride, in, 1, In::slots);
        single(in, out, left.flag);
        copyStrided(out, 1, left.dst.data, left.dst.stride, Out::slots);
    }
}

}   // namespace kfm::rows
