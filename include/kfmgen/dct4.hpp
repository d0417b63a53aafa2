// Plans of the DCT-IV, in memory of the library's or of the caller's. A plan is made for a length, then
// called any number of times, by one thread at a time.
#ifndef KFMGEN_DCT4_HPP
#define KFMGEN_DCT4_HPP

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "families.hpp"
#include "status.hpp"

namespace kfm {

namespace detail {

template <Number T>
struct Dct4Functions;
#define KFM_DCT4(T, suffix)                                     \
    template <>                                                 \
    struct Dct4Functions<T> {                                   \
        using Spec = KfmDCT4Spec##suffix;                       \
        static constexpr auto size = kfmgDCT4GetSize##suffix;   \
        static constexpr auto init = kfmgDCT4Init##suffix;      \
        static constexpr auto make = kfmgDCT4InitAlloc##suffix; \
        static constexpr auto free = kfmgDCT4Free##suffix;      \
        static constexpr auto run = kfmgDCT4##suffix;           \
    };
KFM_DCT4(float, _32f)
KFM_DCT4(double, _64f)
#undef KFM_DCT4

template <Number T>
struct FreePlan {
    void operator()(typename Dct4Functions<T>::Spec* spec) const noexcept {
        Dct4Functions<T>::free(spec);
    }
};
struct KeepPlan {   // the memory is another's
    void operator()(const void*) const noexcept {}
};

}   // namespace detail

// A plan for one length, which is called like a function. `Release` tells whose memory it is in: see
// Dct4 and Dct4In.
template <detail::Number T, class Release>
class Dct4Plan {
    using C = detail::Dct4Functions<T>;
    using Spec = typename C::Spec;

public:
    // In memory of the library's, which ends with the plan. Throws Error for a length that is none.
    explicit Dct4Plan(std::size_t length) requires std::same_as<Release, detail::FreePlan<T>>
        : Dct4Plan(make(length).orThrow()) {}

    // The same without exceptions.
    static Expected<Dct4Plan> make(
        std::size_t length) requires std::same_as<Release, detail::FreePlan<T>> {
        Spec* spec = nullptr;
        const KfmStatus status = C::make(&spec, detail::lengthArgument<void>(length));
        if (status != kfmOk) return Result(status);
        return Dct4Plan(spec, length);
    }

    // Bytes that a plan needs.
    static Expected<std::size_t> memorySize(std::size_t length) {
        return detail::sizeFrom(C::size, detail::lengthArgument<void>(length));
    }

    // In the caller's memory, which must stay while the plan is used: memorySize() bytes, starting at
    // a multiple of 32; else kfmErrSize.
    static Expected<Dct4Plan> make(std::size_t length, std::span<std::byte> memory) requires
        std::same_as<Release, detail::KeepPlan> {
        Expected<std::size_t> size = memorySize(length);
        if (!size || !detail::serves(memory, *size, 32)) return Result(kfmErrSize);
        Spec* spec = nullptr;
        const KfmStatus status = C::init(&spec, detail::lengthArgument<void>(length),
                                         reinterpret_cast<Kfm8u*>(memory.data()));
        if (status != kfmOk) return Result(status);
        return Dct4Plan(spec, length);
    }

    // The length that is planned.
    std::size_t size() const noexcept { return length_; }

    // Transforms src to dst, both of size() elements; they may be the same memory.
    Result operator()(std::span<const T> src, std::span<T> dst) {
        if (src.size() != length_ || dst.size() != length_) return kfmErrSize;
        return C::run(src.data(), dst.data(), spec_.get());
    }

    // The plan as the C functions take it, such as kfmrDCT4_32f.
    const Spec* specification() const noexcept { return spec_.get(); }

private:
    Dct4Plan(Spec* spec, std::size_t length) : spec_(spec), length_(length) {}

    std::unique_ptr<Spec, Release> spec_;
    std::size_t length_;
};

// A plan in memory of the library's.
template <detail::Number T>
using Dct4 = Dct4Plan<T, detail::FreePlan<T>>;
// A plan in the caller's memory.
template <detail::Number T>
using Dct4In = Dct4Plan<T, detail::KeepPlan>;

}   // namespace kfm

#endif
