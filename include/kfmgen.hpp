// The transforms of kfmgen.h in C++20: ranges instead of pointers, the length a template argument or
// known at run time. Header only and without cost: a call with the length as template argument is one
// call of the C function. What a transform computes, its lengths, scaling, alignment, aliasing and
// threads are told there. Link with -lkfmgenw7.
//
//   std::vector<std::complex<float>> signal(16), spectrum(16);
//   kfm::transform<kfm::Dft, 16>(signal, spectrum).orThrow();
//   if (!kfm::transform<kfm::InverseDft>(spectrum, signal)) ...   // the length is that of the ranges
//
// Families: Dft, InverseDft, RealDft<Layout>, InverseRealDft<Layout>, Hartley, Wht. Spectrum reads the
// packed layouts, Dct4 plans the DCT-IV; many frames at a time are in kfmrows.hpp.
//
// Ranges are contiguous: std::vector, std::array, arrays, std::span. Their sizes are those of the
// transform, exactly. Sizes that the compiler knows are checked by it, all others by the call, which
// then returns kfmErrSize and writes nothing.
//
// A std::complex<T> is an array of two T, real part first, by the words of the standard; so is a
// Kfm32fc or Kfm64fc by its definition. Their addresses are exchanged here, and the numbers are read
// and written by code that was compiled elsewhere and knows them as numbers.
#ifndef KFMGEN_HPP
#define KFMGEN_HPP

#include <algorithm>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <ranges>
#include <span>
#include <type_traits>

#include "kfmgen/dct4.hpp"
#include "kfmgen/families.hpp"
#include "kfmgen/spectrum.hpp"
#include "kfmgen/status.hpp"

namespace kfm {

namespace detail {

template <class Element, class Range>
auto pointer(Range&& range) {
    using Value = std::remove_reference_t<std::ranges::range_reference_t<Range>>;
    using Target = std::conditional_t<std::is_const_v<Value>, const Element, Element>;
    return reinterpret_cast<Target*>(std::ranges::data(range));
}

template <class Range>
constexpr std::size_t numbers(const Range& range) {
    return std::ranges::size(range) * Parts<ValueOf<Range>>::count;
}

// Whether a range may have so many numbers, as far as the compiler knows.
template <class Range>
constexpr bool mayHold(std::size_t size) {
    constexpr std::size_t extent = decltype(std::span(std::declval<Range&>()))::extent;
    return extent == std::dynamic_extent || extent * Parts<ValueOf<Range>>::count == size;
}

// Whether there is a transform of length n, and the ranges may be of its sizes.
template <class Family, std::size_t n, class Src, class Dst>
concept OfLength = n == anyLength ||
                   (lengthArgument<Family>(n) >= Functions<Family, NumberOf<Src>>::first &&
                    lengthArgument<Family>(n) <= Functions<Family, NumberOf<Src>>::last &&
                    mayHold<const Src>(Sides<Family>::sourceSize(n)) &&
                    mayHold<Dst>(Sides<Family>::destinationSize(n)));

template <class Family, std::size_t n, class Src, class Dst, class... Buffer>
Result call(const Src& src, Dst& dst, Scale scale, Buffer... buffer) {
    using F = Functions<Family, NumberOf<Src>>;
    const auto* from = pointer<typename F::Element>(src);
    auto* to = pointer<typename F::Element>(dst);
    std::size_t length = n;
    if constexpr (n == anyLength)   // that of the signal, which is no longer than half a spectrum
        length = std::min(numbers(src), numbers(dst)) / Sides<Family>::perElement;
    if (numbers(src) != Sides<Family>::sourceSize(length) ||
        numbers(dst) != Sides<Family>::destinationSize(length))
        return kfmErrSize;
    if constexpr (n == anyLength) {
        return F::atRunTime(from, to, lengthArgument<Family>(length), int(scale), buffer...);
    } else {
        constexpr auto function = F::fixed[lengthArgument<Family>(n) - F::first];
        return function(from, to, int(scale), buffer...);
    }
}

}   // namespace detail

// Of the length n, or without it of the length that the ranges have. In place where both are the same
// memory. The Walsh-Hadamard transform allocates what it needs.
template <class Family, std::size_t n = detail::anyLength, class Src, class Dst>
requires detail::Transformable<Family, Src, Dst> && detail::OfLength<Family, n, Src, Dst> Result
transform(const Src& src, Dst&& dst, Scale scale = Scale::inverseByN) {
    if constexpr (detail::byOrder<Family>)
        return detail::call<Family, n>(src, dst, scale, static_cast<Kfm8u*>(nullptr));
    else return detail::call<Family, n>(src, dst, scale);
}

// Bytes of the buffer in which the Walsh-Hadamard transform of a length works.
template <detail::Number T>
Expected<std::size_t> whtBufferSize(std::size_t length) {
    const auto tell = std::same_as<T, float> ? kfmgWHTGetBufferSize_32f : kfmgWHTGetBufferSize_64f;
    return detail::sizeFrom(tell, detail::lengthArgument<Wht>(length));
}

// In the caller's buffer, of that size at least, which starts at a multiple of 16: no allocation. One
// that is too small or starts elsewhere is refused with kfmErrSize.
template <class Family, std::size_t n = detail::anyLength, class Src, class Dst>
requires detail::Transformable<Family, Src, Dst> && detail::OfLength<Family, n, Src, Dst> &&
    detail::byOrder<Family>
        Result transform(const Src& src, Dst&& dst, Scale scale, std::span<std::byte> buffer) {
    Expected<std::size_t> size = whtBufferSize<detail::NumberOf<Src>>(std::ranges::size(src));
    if (!size || !detail::serves(buffer, *size, 16)) return kfmErrSize;
    return detail::call<Family, n>(src, dst, scale, reinterpret_cast<Kfm8u*>(buffer.data()));
}

}   // namespace kfm

#endif
