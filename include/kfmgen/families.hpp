// The families of transforms as types, and the C functions behind them.
#ifndef KFMGEN_FAMILIES_HPP
#define KFMGEN_FAMILIES_HPP

#include <bit>
#include <climits>
#include <complex>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <ranges>
#include <span>
#include <type_traits>

#include "../kfmgen.h"

namespace kfm {

// The factor of every output; there and back by the same one of the first three is the input.
enum class Scale : int {
    forwardByN = kfmScaleFwdByN,
    inverseByN = kfmScaleInvByN,
    bySqrtN = kfmScaleBySqrtN,
    none = kfmScaleNone
};

// Half the spectrum of a real signal: as complex bins 0 to N/2, or as N numbers.
enum class Layout { ccs, pack, perm };

struct Dft {};          // of complex numbers
struct InverseDft {};   // of complex numbers
template <Layout layout>
struct RealDft {};   // from N numbers to half a spectrum
template <Layout layout>
struct InverseRealDft {};   // from half a spectrum to N numbers
struct Hartley {};          // of N numbers
struct Wht {};              // Walsh-Hadamard, of a power of two

namespace detail {

template <class T>
concept Number = std::same_as<T, float> || std::same_as<T, double>;

template <class Value>
struct Parts {   // of a number
    using Of = Value;
    static constexpr std::size_t count = 1;
};
template <class T>
struct Parts<std::complex<T>> {
    using Of = T;
    static constexpr std::size_t count = 2;
};
template <class Range>
using ValueOf = std::ranges::range_value_t<Range>;
template <class Range>
using NumberOf = typename Parts<ValueOf<Range>>::Of;

template <class Range>
concept Numbers = std::ranges::contiguous_range<Range> && std::ranges::sized_range<Range> &&
    Number<NumberOf<Range>>;

inline constexpr std::size_t anyLength = std::dynamic_extent;

// What either side of a transform of length n holds: so many numbers, in ranges of numbers or of
// complex numbers.
enum class Values { real, complex, either };

constexpr std::size_t spectrumSize(Layout layout, std::size_t n) {
    return layout == Layout::ccs ? 2 * (n / 2 + 1) : n;
}
constexpr Values spectrumValues(Layout layout) {
    return layout == Layout::ccs ? Values::either : Values::real;
}

template <class Family>
struct Sides {
    static constexpr std::size_t perElement = 1;
    static constexpr Values source = Values::real, destination = Values::real;
    static constexpr std::size_t sourceSize(std::size_t n) { return n; }
    static constexpr std::size_t destinationSize(std::size_t n) { return n; }
};
struct ComplexSides {
    static constexpr std::size_t perElement = 2;
    static constexpr Values source = Values::complex, destination = Values::complex;
    static constexpr std::size_t sourceSize(std::size_t n) { return 2 * n; }
    static constexpr std::size_t destinationSize(std::size_t n) { return 2 * n; }
};
template <>
struct Sides<Dft> : ComplexSides {};
template <>
struct Sides<InverseDft> : ComplexSides {};
template <Layout layout>
struct Sides<RealDft<layout>> : Sides<void> {
    static constexpr Values destination = spectrumValues(layout);
    static constexpr std::size_t destinationSize(std::size_t n) { return spectrumSize(layout, n); }
};
template <Layout layout>
struct Sides<InverseRealDft<layout>> : Sides<void> {
    static constexpr Values source = spectrumValues(layout);
    static constexpr std::size_t sourceSize(std::size_t n) { return spectrumSize(layout, n); }
};

template <Values values, class Range>
inline constexpr bool holds = values == Values::either ||
                              (values == Values::complex) == (Parts<ValueOf<Range>>::count == 2);

template <class Family, class Src, class Dst>
concept Transformable =
    Numbers<Src> && Numbers<Dst> && std::same_as<NumberOf<Src>, NumberOf<Dst>> &&
    holds<Sides<Family>::source, Src> && holds<Sides<Family>::destination, Dst> &&
    !std::is_const_v<std::remove_reference_t<std::ranges::range_reference_t<Dst>>>;

// The functions of a family: those of fixed length in a table, and the one for any.
template <class Family, class T>
struct Functions;

#define KFM_EACH_LENGTH(f, e)                                                                     \
    f##2##e, f##3##e, f##4##e, f##5##e, f##6##e, f##7##e, f##8##e, f##9##e, f##10##e, f##11##e,   \
        f##12##e, f##13##e, f##14##e, f##15##e, f##16##e, f##17##e, f##18##e, f##19##e, f##20##e, \
        f##21##e, f##22##e, f##23##e, f##24##e, f##25##e, f##26##e, f##27##e, f##28##e, f##29##e, \
        f##30##e, f##31##e, f##32##e, f##33##e, f##34##e, f##35##e, f##36##e, f##37##e, f##38##e, \
        f##39##e, f##40##e, f##41##e, f##42##e, f##43##e, f##44##e, f##45##e, f##46##e, f##47##e, \
        f##48##e, f##49##e, f##50##e, f##51##e, f##52##e, f##53##e, f##54##e, f##55##e, f##56##e, \
        f##57##e, f##58##e, f##59##e, f##60##e, f##61##e, f##62##e, f##63##e, f##64##e
#define KFM_EACH_ORDER(f, e)                                                                   \
    f##1##e, f##2##e, f##3##e, f##4##e, f##5##e, f##6##e, f##7##e, f##8##e, f##9##e, f##10##e, \
        f##11##e, f##12##e, f##13##e
#define KFM_FUNCTIONS(Family, T, Type, name, suffix, each, least)      \
    template <>                                                        \
    struct Functions<Family, T> {                                      \
        using Element = Type;                                          \
        static constexpr int first = least;                            \
        static constexpr decltype(&kfmg##name##_2##suffix) fixed[] = { \
            each(kfmg##name##_, suffix)};                              \
        static constexpr int last = least + std::size(fixed) - 1;      \
        static constexpr auto atRunTime = kfmg##name##suffix;          \
    };
#define KFM_REAL_FUNCTIONS(Family, name, each, least)             \
    KFM_FUNCTIONS(Family, float, Kfm32f, name, _32f, each, least) \
    KFM_FUNCTIONS(Family, double, Kfm64f, name, _64f, each, least)
#define KFM_COMPLEX_FUNCTIONS(Family, name)                                \
    KFM_FUNCTIONS(Family, float, Kfm32fc, name, _32fc, KFM_EACH_LENGTH, 2) \
    KFM_FUNCTIONS(Family, double, Kfm64fc, name, _64fc, KFM_EACH_LENGTH, 2)

KFM_COMPLEX_FUNCTIONS(Dft, DFTFwd_CToC)
KFM_COMPLEX_FUNCTIONS(InverseDft, DFTInv_CToC)
KFM_REAL_FUNCTIONS(RealDft<Layout::ccs>, DFTFwd_RToCCS, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(RealDft<Layout::pack>, DFTFwd_RToPack, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(RealDft<Layout::perm>, DFTFwd_RToPerm, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(InverseRealDft<Layout::ccs>, DFTInv_CCSToR, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(InverseRealDft<Layout::pack>, DFTInv_PackToR, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(InverseRealDft<Layout::perm>, DFTInv_PermToR, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(Hartley, Hartley, KFM_EACH_LENGTH, 2)
KFM_REAL_FUNCTIONS(Wht, WHT, KFM_EACH_ORDER, 1)

#undef KFM_COMPLEX_FUNCTIONS
#undef KFM_REAL_FUNCTIONS
#undef KFM_FUNCTIONS
#undef KFM_EACH_ORDER
#undef KFM_EACH_LENGTH

template <class Family>
inline constexpr bool byOrder = std::same_as<Family, Wht>;

// The argument of the C function for a length; of one that it will refuse, 0.
template <class Family>
constexpr int lengthArgument(std::size_t n) {
    if constexpr (byOrder<Family>) return std::has_single_bit(n) ? std::countr_zero(n) : 0;
    else return n <= INT_MAX ? static_cast<int>(n) : 0;
}

// Whether memory of the caller's is as large and as aligned as a call asks for.
inline bool serves(std::span<const std::byte> memory, std::size_t size, std::size_t alignment) {
    return memory.size() >= size &&
           reinterpret_cast<std::uintptr_t>(memory.data()) % alignment == 0;
}

}   // namespace detail

}   // namespace kfm

#endif
