// An OFDM modem: 48 of 64 carriers with 16-QAM, a cyclic prefix of 16 samples, white noise. The symbol
// error rate stands beside theory (Proakis, Digital Communications, on square QAM).
//
//   c++ -std=c++20 -O2 ofdm.cpp $(pkg-config --cflags --libs kfmrows fftw3f) && ./a.out
//
// Otherwise one would take FFTW's plan for many transforms; the times of both are printed.
#include <fftw3.h>

#include <cmath>
#include <complex>
#include <random>

#include "common.h"
#include "kfmrows.h"

namespace {

using Complex = std::complex<float>;
constexpr int carriers = 64, prefix = 16, used = 48, symbols = 2000, received = carriers + prefix;
constexpr float amplitude =
    0.31622777f;   // 16-QAM of mean power 1 has levels -3, -1, 1, 3 times it

// Both sides of zero, which stays free.
int carrierOf(int i) { return i < used / 2 ? i + 1 : carriers - used + i; }

Kfm32fc* cast(Complex* x) { return reinterpret_cast<Kfm32fc*>(x); }

void require(KfmStatus status) {
    if (status != kfmOk) throw std::runtime_error(std::to_string(status));
}

float nearest(float value) {
    const float level = std::round((value / amplitude + 3) / 2);
    return amplitude * (2 * std::clamp(level, 0.0f, 3.0f) - 3);
}

// The share of wrong symbols at a ratio of carrier power to noise power.
double errorRate(double ratio, std::mt19937& random) {
    std::vector<Complex> sent(symbols * carriers), signal(symbols * received), spectrum(sent);
    std::uniform_int_distribution<int> level(0, 3);
    for (int row = 0; row < symbols; ++row)
        for (int i = 0; i < used; ++i)
            sent[row * carriers + carrierOf(i)] = {amplitude * (2 * level(random) - 3),
                                                   amplitude * (2 * level(random) - 3)};
    // Every symbol behind the place of its prefix; 1/sqrt(N) keeps the power.
    require(kfmrDFTInv_CToC_32fc(cast(sent.data()), 1, carriers, cast(signal.data() + prefix), 1,
                                 received, carriers, symbols, kfmScaleBySqrtN));
    std::normal_distribution<float> noise(0, static_cast<float>(std::sqrt(0.5 / ratio)));
    for (int row = 0; row < symbols; ++row) {
        Complex* const symbol = signal.data() + row * received;
        std::copy_n(symbol + carriers, prefix, symbol);
        for (int n = 0; n < received; ++n) symbol[n] += Complex(noise(random), noise(random));
    }
    require(kfmrDFTFwd_CToC_32fc(cast(signal.data() + prefix), 1, received, cast(spectrum.data()),
                                 1, carriers, carriers, symbols, kfmScaleBySqrtN));
    long wrong = 0;
    for (int row = 0; row < symbols; ++row)
        for (int i = 0; i < used; ++i) {
            const std::size_t at = row * carriers + carrierOf(i);
            const Complex decided(nearest(spectrum[at].real()), nearest(spectrum[at].imag()));
            wrong += std::abs(decided - sent[at]) > amplitude / 2;
        }
    return static_cast<double>(wrong) / (symbols * used);
}

double theory(double ratio) {
    const double tail = 0.75 * std::erfc(std::sqrt(ratio / 10));   // of one of the two parts
    return 1 - (1 - tail) * (1 - tail);
}

void printTimes() {
    std::vector<Complex> in(symbols * carriers, Complex(1, -1)), out(in);
    const auto from = reinterpret_cast<fftwf_complex*>(in.data());
    const auto to = reinterpret_cast<fftwf_complex*>(out.data());
    const int n = carriers;
    fftwf_plan plan = fftwf_plan_many_dft(1, &n, symbols, from, nullptr, 1, n, to, nullptr, 1, n,
                                          FFTW_FORWARD, FFTW_MEASURE);
    const auto ns =
        example::least({[&] {
                            kfmrDFTFwd_CToC_32fc(cast(in.data()), 1, n, cast(out.data()), 1, n, n,
                                                 symbols, kfmScaleNone);
                        },
                        [&] { fftwf_execute(plan); }},
                       20);
    std::printf("a symbol's transform: %.0f ns; FFTW %.0f ns\n", ns[0] / symbols, ns[1] / symbols);
    fftwf_destroy_plan(plan);
}

}   // namespace

int main() try {
    std::mt19937 random(1);
    std::vector<std::vector<double>> rows;
    for (int decibels = 6; decibels <= 20; decibels += 2) {
        const double ratio = std::pow(10, decibels / 10.0);
        rows.push_back({double(decibels), errorRate(ratio, random), theory(ratio)});
        std::printf("SNR %2d dB: symbol error rate %.5f, theory %.5f\n", decibels, rows.back()[1],
                    rows.back()[2]);
    }
    example::draw("ofdm.png", example::data("rates", rows) +
                                  "set title 'OFDM, 16-QAM on 48 of 64 carriers'\nset logscale y\n"
                                  "set format y '10^{%T}'\nset xlabel 'SNR of a carrier in dB'\n"
                                  "set ylabel 'symbol error rate'\nset yrange [1e-5:1]\n"
                                  "plot $rates using 1:3 with lines lw 2 title 'theory', "
                                  "$rates using 1:2 with points pt 7 title 'measured'\n");
    printTimes();
} catch (const std::exception& error) {
    std::fprintf(stderr, "ofdm: %s\n", error.what());
    return 1;
}
