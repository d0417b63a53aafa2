// Circular convolution of real signals by the Hartley transform, all in real numbers (Bracewell, The
// Hartley Transform, 1986): of X and Y
//
//   Z(k) = (X(k) (Y(k) + Y(-k)) + X(-k) (Y(k) - Y(-k))) / 2
//
//   c++ -std=c++20 -O2 hartley_convolution.cpp $(pkg-config --cflags --libs kfmgen fftw3) && ./a.out
//
// Otherwise one would sum, or take FFTW's real DFT; the times of all are printed.
#include <fftw3.h>

#include <cmath>
#include <complex>

#include "common.h"
#include "kfmgen.h"

namespace {

constexpr int length = 60;
using Signal = std::vector<double>;

Signal hartley(const Signal& x) {
    Signal y(length);
    kfmgHartley_60_64f(x.data(), y.data(), kfmScaleNone);
    return y;
}

// `kernel` is a transform already, as that of a filter would be.
void convolve(const Signal& x, const Signal& kernel, Signal& result) {
    double spectrum[length], product[length];
    kfmgHartley_60_64f(x.data(), spectrum, kfmScaleNone);
    for (int k = 0; k < length; ++k) {
        const int mirrored = (length - k) % length;
        product[k] = 0.5 * (spectrum[k] * (kernel[k] + kernel[mirrored]) +
                            spectrum[mirrored] * (kernel[k] - kernel[mirrored]));
    }
    kfmgHartley_60_64f(product, result.data(), kfmScaleFwdByN);
}

void sum(const Signal& x, const Signal& y, Signal& result) {
    for (int n = 0; n < length; ++n) {
        result[n] = 0;
        for (int i = 0; i < length; ++i) result[n] += x[i] * y[(n - i + length) % length];
    }
}

class ByFftw {
public:
    explicit ByFftw(const Signal& kernel)
        : there_(fftw_plan_dft_r2c_1d(length, x_, cast(bins_), FFTW_PATIENT)),
          back_(fftw_plan_dft_c2r_1d(length, cast(bins_), x_, FFTW_PATIENT)) {
        std::ranges::copy(kernel, x_);
        fftw_execute(there_);
        std::ranges::copy(bins_, kernel_);
    }
    ~ByFftw() {
        fftw_destroy_plan(there_);
        fftw_destroy_plan(back_);
    }
    void convolve(const Signal& x, Signal& result) {
        std::ranges::copy(x, x_);
        fftw_execute(there_);
        for (int k = 0; k <= length / 2; ++k) {   // without operator*, which looks for infinities
            const auto a = bins_[k], b = kernel_[k];
            bins_[k] = {(a.real() * b.real() - a.imag() * b.imag()) / length,
                        (a.real() * b.imag() + a.imag() * b.real()) / length};
        }
        fftw_execute(back_);
        std::ranges::copy(x_, result.begin());
    }

private:
    using Bin = std::complex<double>;
    static fftw_complex* cast(Bin* bins) { return reinterpret_cast<fftw_complex*>(bins); }

    double x_[length];
    Bin bins_[length / 2 + 1], kernel_[length / 2 + 1];
    fftw_plan there_, back_;
};

double largestDifference(const Signal& a, const Signal& b) {
    double most = 0;
    for (int n = 0; n < length; ++n) most = std::max(most, std::abs(a[n] - b[n]));
    return most;
}

}   // namespace

int main() try {
    Signal x(length), y(length), result(length), expected(length);
    for (int n = 0; n < length; ++n) {
        x[n] = n >= 10 && n < 30;
        y[n] = std::exp(-0.2 * n) * std::cos(0.6 * n);   // of a resonance
    }
    const Signal kernel = hartley(y);
    ByFftw fftw(y);
    convolve(x, kernel, result);
    sum(x, y, expected);
    std::printf("largest difference from the sum %.1e\n", largestDifference(result, expected));
    std::vector<std::vector<double>> rows;
    for (int n = 0; n < length; ++n) rows.push_back({double(n), x[n], y[n], result[n]});
    example::draw("hartley_convolution.png",
                  example::data("signals", rows) +
                      "set title 'Circular convolution of 60 samples'\nset xlabel 'sample'\n"
                      "plot $signals using 1:2 with steps lw 2 title 'signal', "
                      "$signals using 1:3 with lines lw 2 title 'kernel', "
                      "$signals using 1:4 with lines lw 2 title 'both convolved'\n");
    const auto ns = example::least({[&] { convolve(x, kernel, result); },
                                    [&] { fftw.convolve(x, result); }, [&] { sum(x, y, result); }});
    std::printf("%.0f ns; by FFTW's real DFT %.0f ns; by the sum %.0f ns\n", ns[0], ns[1], ns[2]);
} catch (const std::exception& error) {
    std::fprintf(stderr, "hartley_convolution: %s\n", error.what());
    return 1;
}
