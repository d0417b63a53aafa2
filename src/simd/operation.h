// How the one-line operations are declared. The compiler would inline them by itself, but takes
// half of the compile time of a long kernel to find that out.
#pragma once

#define KFM_OPERATION [[gnu::always_inline]] inline

// Of functions and lambdas that must vanish: their arguments turn into registers and constants.
#define KFM_INLINE __attribute__((always_inline))

namespace kfm::simd {

// Whether vectors move from and to any address as fast as from and to aligned ones.
#if defined(__AVX2__) || defined(__ARM_NEON)
inline constexpr bool movesAnywhere = true;
#else
inline constexpr bool movesAnywhere = false;
#endif

// The compiler leaves a value, vector or number, as it was computed, and in a register.
template <class Value>
KFM_OPERATION void pin(Value& a) {
#ifdef __ARM_NEON
    asm("" : "+w"(a));
#else
    asm("" : "+x"(a));
#endif
}

}   // namespace kfm::simd
