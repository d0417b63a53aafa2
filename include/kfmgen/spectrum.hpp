// Half a spectrum of a real signal, read bin by bin.
#ifndef KFMGEN_SPECTRUM_HPP
#define KFMGEN_SPECTRUM_HPP

#include <complex>
#include <cstddef>
#include <span>

#include "families.hpp"
#include "status.hpp"

namespace kfm {

// Of a real signal of n samples: X[k] for any k, also negative or beyond n, because the other half are
// conjugates and all repeat after n. A view: the values must outlive it.
template <Layout layout, detail::Number T>
class Spectrum {
public:
    // Throws Error where `values` have another number than such a spectrum has.
    Spectrum(std::span<const T> values, std::size_t n) : values_(values.data()), n_(n) {
        if (n == 0 || values.size() != detail::spectrumSize(layout, n)) throw Error(kfmErrSize);
    }

    // The number of samples, and of bins before they repeat.
    std::size_t size() const noexcept { return n_; }

    // Bin k.
    std::complex<T> operator[](std::ptrdiff_t k) const noexcept {
        const auto n = static_cast<std::ptrdiff_t>(n_);
        const std::ptrdiff_t bin = ((k % n) + n) % n;
        return bin <= n / 2 ? half(bin) : std::conj(half(n - bin));
    }

private:
    std::complex<T> half(std::ptrdiff_t k) const noexcept {
        const std::ptrdiff_t n = n_;
        const bool whole = k == 0 || 2 * k == n;   // no imaginary part
        std::ptrdiff_t at = k == 0 ? 0 : 2 * k - 1;
        if (layout == Layout::ccs) at = 2 * k;
        if (layout == Layout::perm && n % 2 == 0 && k > 0) at = whole ? 1 : 2 * k;
        return {values_[at], whole ? T(0) : values_[at + 1]};
    }

    const T* values_;
    std::size_t n_;
};

}   // namespace kfm

#endif
