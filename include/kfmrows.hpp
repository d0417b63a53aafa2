// The transforms of kfmrows.h in C++20: many frames at a time, contiguous, as columns, or with any
// stride and distance in an array. Link with -lkfmrows -lkfmgenw7.
//
//   std::vector<std::complex<float>> block(8 * 8);
//   kfm::transform<kfm::Dft>(kfm::Frames(block, 8), kfm::Frames(block, 8)).orThrow();   // rows
//   kfm::transform<kfm::Dft>(kfm::Frames<std::complex<float>>::columns(block, 8), ...)  // columns
//
// In place where both sides are the same frames; any other overlap is not allowed.
#ifndef KFMROWS_HPP
#define KFMROWS_HPP

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>

#include "kfmgen.hpp"
#include "kfmrows.h"

namespace kfm {

// Frames of `length` elements in an array, `stride` elements from one to the next, and `distance` from
// frame to frame; either may be negative. Packed spectra are frames of numbers. A view: the array must
// outlive it.
template <class Value>
class Frames {
public:
    // One after the other. A rest that is no whole frame makes a call fail.
    Frames(std::span<Value> array, std::size_t length)
        : Frames(array, length == 0 ? 0 : array.size() / length, length, 0, 1, length) {
        if (length == 0 || array.size() % length != 0) inside_ = false;
    }

    // Frame r is column r of an array of so many columns.
    static Frames columns(std::span<Value> array, std::size_t count) {
        Frames frames(array, count, count == 0 ? 0 : array.size() / count, 0, count, 1);
        if (count == 0 || array.size() % count != 0) frames.inside_ = false;
        return frames;
    }

    // Element k of frame r is array[first + k * stride + r * distance]. Where one of them is outside of
    // the array, calls fail with kfmErrSize.
    Frames(std::span<Value> array, std::size_t count, std::size_t length, std::size_t first,
           std::ptrdiff_t stride, std::ptrdiff_t distance)
        : data_(array.data() + (first < array.size() ? first : 0)), count_(count), length_(length),
          stride_(stride), distance_(distance) {
        if (count == 0 || length == 0) return;
        // What is left of the array before and behind the first element.
        std::size_t before = first, behind = array.size() - first - 1;
        inside_ = first < array.size() && take(before, behind, length - 1, stride) &&
                  take(before, behind, count - 1, distance);
    }

    Value* data() const noexcept { return data_; }                   // element 0 of frame 0
    std::size_t count() const noexcept { return count_; }            // of frames
    std::size_t length() const noexcept { return length_; }          // of each, in elements
    std::ptrdiff_t stride() const noexcept { return stride_; }       // from element to element
    std::ptrdiff_t distance() const noexcept { return distance_; }   // from frame to frame
    bool insideArray() const noexcept { return inside_; }   // all elements are in the array

private:
    static bool take(std::size_t& before, std::size_t& behind, std::size_t steps,
                     std::ptrdiff_t step) {
        std::size_t& room = step < 0 ? before : behind;
        const std::size_t size = step < 0 ? std::size_t(0) - std::size_t(step) : std::size_t(step);
        if (steps != 0 && size > room / steps) return false;
        room -= steps * size;
        return true;
    }

    Value* data_;
    std::size_t count_, length_;
    std::ptrdiff_t stride_, distance_;
    bool inside_ = true;
};
// Of an array of any kind.
template <class Array>
Frames(Array&, std::size_t)
    -> Frames<typename decltype(std::span(std::declval<Array&>()))::element_type>;

namespace detail {

template <class Family, class T>
struct FrameFunction;
#define KFM_FRAMES(Family, name, single, twofold)        \
    template <>                                          \
    struct FrameFunction<Family, float> {                \
        static constexpr auto run = kfmr##name##single;  \
    };                                                   \
    template <>                                          \
    struct FrameFunction<Family, double> {               \
        static constexpr auto run = kfmr##name##twofold; \
    };
KFM_FRAMES(Dft, DFTFwd_CToC, _32fc, _64fc)
KFM_FRAMES(InverseDft, DFTInv_CToC, _32fc, _64fc)
KFM_FRAMES(RealDft<Layout::ccs>, DFTFwd_RToCCS, _32f, _64f)
KFM_FRAMES(RealDft<Layout::pack>, DFTFwd_RToPack, _32f, _64f)
KFM_FRAMES(RealDft<Layout::perm>, DFTFwd_RToPerm, _32f, _64f)
KFM_FRAMES(InverseRealDft<Layout::ccs>, DFTInv_CCSToR, _32f, _64f)
KFM_FRAMES(InverseRealDft<Layout::pack>, DFTInv_PackToR, _32f, _64f)
KFM_FRAMES(InverseRealDft<Layout::perm>, DFTInv_PermToR, _32f, _64f)
KFM_FRAMES(Hartley, Hartley, _32f, _64f)
KFM_FRAMES(Wht, WHT, _32f, _64f)
#undef KFM_FRAMES

// As many frames on both sides, all of them inside their arrays.
template <class Src, class Dst>
bool match(const Frames<Src>& src, const Frames<Dst>& dst) {
    return src.insideArray() && dst.insideArray() && src.count() == dst.count() &&
           src.count() <= PTRDIFF_MAX;
}

template <class Family, class Src, class Dst, class... Buffer>
Result callFrames(const Frames<Src>& src, const Frames<Dst>& dst, Scale scale, Buffer... buffer) {
    using Value = std::remove_const_t<Src>;
    using Element = typename Functions<Family, typename Parts<Value>::Of>::Element;
    constexpr std::size_t parts = Parts<Value>::count;
    const std::size_t length = std::min(src.length(), dst.length());
    if (!match(src, dst) || parts * src.length() != Sides<Family>::sourceSize(length) ||
        parts * dst.length() != Sides<Family>::destinationSize(length))
        return kfmErrSize;
    return FrameFunction<Family, typename Parts<Value>::Of>::run(
        reinterpret_cast<const Element*>(src.data()), src.stride(), src.distance(),
        reinterpret_cast<Element*>(dst.data()), dst.stride(), dst.distance(),
        lengthArgument<Family>(length), static_cast<std::ptrdiff_t>(src.count()), int(scale),
        buffer...);
}

// Complex numbers on both sides, or on none.
template <class Family, class Src, class Dst>
concept FramesTransformable =
    !std::is_const_v<Dst> && std::same_as<std::remove_const_t<Src>, Dst> &&
    (Parts<Dst>::count == Sides<Family>::perElement);

}   // namespace detail

// Every frame of src to the frame of dst with its number.
template <class Family, class Src, class Dst>
requires detail::FramesTransformable<Family, Src, Dst> Result
transform(const Frames<Src>& src, const Frames<Dst>& dst, Scale scale = Scale::inverseByN) {
    if constexpr (detail::byOrder<Family>)
        return detail::callFrames<Family>(src, dst, scale, static_cast<Kfm8u*>(nullptr));
    else return detail::callFrames<Family>(src, dst, scale);
}

// Bytes of the buffer in which frames of a length go through the Walsh-Hadamard transform.
template <detail::Number T>
Expected<std::size_t> whtFramesBufferSize(std::size_t length) {
    const auto tell = std::same_as<T, float> ? kfmrWHTGetBufferSize_32f : kfmrWHTGetBufferSize_64f;
    return detail::sizeFrom(tell, detail::lengthArgument<Wht>(length));
}

// In the caller's buffer, as for one frame.
template <class Family, class Src, class Dst>
requires detail::FramesTransformable<Family, Src, Dst> && detail::byOrder<Family> Result transform(
    const Frames<Src>& src, const Frames<Dst>& dst, Scale scale, std::span<std::byte> buffer) {
    Expected<std::size_t> size = whtFramesBufferSize<Dst>(src.length());
    if (!size || !detail::serves(buffer, *size, 16)) return kfmErrSize;
    return detail::callFrames<Family>(src, dst, scale, reinterpret_cast<Kfm8u*>(buffer.data()));
}

// By a plan of the DCT-IV.
template <class Src, detail::Number T, class Release>
requires std::same_as<std::remove_const_t<Src>, T> Result transform(const Frames<Src>& src,
                                                                    const Frames<T>& dst,
                                                                    Dct4Plan<T, Release>& plan) {
    if (!detail::match(src, dst) || src.length() != plan.size() || dst.length() != plan.size())
        return kfmErrSize;
    const auto run = [&](auto function) {
        return function(src.data(), src.stride(), src.distance(), dst.data(), dst.stride(),
                        dst.distance(), static_cast<std::ptrdiff_t>(src.count()),
                        plan.specification());
    };
    if constexpr (std::same_as<T, float>) return run(kfmrDCT4_32f);
    else return run(kfmrDCT4_64f);
}

}   // namespace kfm

#endif
