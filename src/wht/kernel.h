// The Walsh-Hadamard transform of one order: its scale factors, its work buffer, its passes. The
// generated sources instantiate it.
#pragma once

#include <numbers>

#include "core/run_kernel.h"
#include "core/work_buffer.h"
#include "wht/passes.h"

namespace kfm::wht {

template <class Real, int order>
struct Kernel {
    static constexpr bool doublePrecision = sizeof(Real) == 8;
    static constexpr Direction direction = Direction::both;

    // Halves of whole powers of two are exact, so one rounding is in sqrt(2) alone.
    static constexpr Real bySqrtN =
        (order % 2 ? std::numbers::sqrt2_v<Real> : Real(1)) / (1 << (order + 1) / 2);
    static constexpr ScaleFactors<Real> scales = {1, Real(1) / (1 << order), bySqrtN};

    template <class Memory>
    KFM_INLINE static void transform(const Real* src, Real* dst, const Real* factor,
                                     [[maybe_unused]] Kfm8u* buffer) {
        using Moves = Access<Real, std::min(order, laneOrder<Real>), Memory>;
        constexpr std::optional<Blocking> blocking = findBlocking(doublePrecision, order);
        const Scale finish = {simd::loadEverywhere<decltype(Moves::load(src))>(factor)};
        if constexpr (!blocking) {
            transformBlock<order, Moves, Moves>(src, dst, finish);
        } else {
            constexpr std::int64_t bytes = bufferBytes(doublePrecision, order);
            const WorkBuffer work(buffer, bytes);
            Real* main = work.template as<Real>();
            transformInPasses<*blocking, Moves>(src, dst, finish, main, main + (1 << order));
        }
    }
};

}   // namespace kfm::wht
