// The DCT-IV planned into memory that is there from the start, as firmware and audio callbacks want it: no
// allocation, no lock, no first call that is slower. Every length is transformed twice, which gives the
// signal back times half its length.
//
//   c++ -std=c++20 -O2 static_dct4.cpp $(pkg-config --cflags --libs kfmgen fftw3f) && ./a.out
//
// Otherwise one would take FFTW's plan of the kind REDFT11, which allocates; the times of both are drawn.
#include <fftw3.h>
#include <malloc.h>

#include <cmath>

#include "common.h"
#include "kfmgen.h"

namespace {

constexpr int longest = 4096;
alignas(64) Kfm8u block[64 * 1024];   // as large as the longest plan wants, and more
alignas(64) float signal[longest], spectrum[longest], restored[longest];

KfmDCT4Spec_32f* plan(int length) {
    int bytes = 0;
    KfmDCT4Spec_32f* spec = nullptr;
    if (kfmgDCT4GetSize_32f(length, &bytes) != kfmOk || bytes > static_cast<int>(sizeof block) ||
        kfmgDCT4Init_32f(&spec, length, block) != kfmOk)
        throw std::runtime_error("no plan of this length, or no room for it");
    return spec;
}

// The largest error of the signal that comes back.
float thereAndBack(int length) {
    const KfmDCT4Spec_32f* const spec = plan(length);
    for (int n = 0; n < length; ++n)
        signal[n] = std::sin(0.001f * static_cast<float>(n) * static_cast<float>(n));
    kfmgDCT4_32f(signal, spectrum, spec);
    kfmgDCT4_32f(spectrum, restored, spec);
    float error = 0;
    for (int n = 0; n < length; ++n)
        error = std::max(error, std::abs(restored[n] * 2 / static_cast<float>(length) - signal[n]));
    return error;
}

std::vector<double> timesOf(int length) {
    const KfmDCT4Spec_32f* const spec = plan(length);
    fftwf_plan theirs = fftwf_plan_r2r_1d(length, signal, spectrum, FFTW_REDFT11, FFTW_MEASURE);
    const auto ns = example::least({[&] { kfmgDCT4_32f(signal, spectrum, spec); },
                                    [&] { fftwf_execute(theirs); }},
                                   std::max(20, 20000 / length));
    fftwf_destroy_plan(theirs);
    return {double(length), ns[0], ns[1]};
}

}   // namespace

int main() try {
    thereAndBack(2);   // the dynamic loader has done what it does at a first call
    const std::size_t before = mallinfo2().uordblks;
    float worst = 0;
    for (int length = 2; length <= longest; length *= 2)
        worst = std::max(worst, thereAndBack(length));
    const std::size_t after = mallinfo2().uordblks;
    std::printf("12 lengths there and back: largest error %.1e, %zu bytes allocated\n", worst,
                after - before);
    std::vector<std::vector<double>> rows;
    for (int length = 8; length <= longest; length *= 2) rows.push_back(timesOf(length));
    for (const auto& row : rows)
        if (row[0] == 1024) std::printf("1024 samples: %.0f ns; FFTW %.0f ns\n", row[1], row[2]);
    example::draw("static_dct4.png",
                  example::data("times", rows) +
                      "set title 'DCT-IV in single precision'\nset logscale xy\n"
                      "set xlabel 'length'\nset ylabel 'ns of a transform'\nset key top left\n"
                      "set xrange [7:4700]\n"
                      "set xtics (8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096)\n"
                      "plot $times using 1:3 with linespoints pt 7 title 'FFTW', "
                      "$times using 1:2 with linespoints pt 7 title 'kfmgen'\n");
} catch (const std::exception& error) {
    std::fprintf(stderr, "static_dct4: %s\n", error.what());
    return 1;
}
