// The transform of odd lengths N, which the two stages cannot give: with inputs and outputs
// permuted and their signs changed it is a Hartley transform of N points, summed here in two
// levels: blocks of 32 inputs, whose angles repeat from block to block, then the blocks.
#include <bit>
#include <limits>

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {
namespace {

constexpr int blockLength = 32;

// Lane by lane, so their number is part of the result.
template <class Real>
constexpr int sums = static_cast<int>(sizeof(VectorOf<Real>) / sizeof(Real));

// cos(pi u/4N (2i+1)) for odd u in (0, 8N) is, but for the sign, the kernel with an odd multiple
// below 2N.
struct Folded {
    std::ptrdiff_t index;
    bool negative;
};

Folded fold(long long multiple, long long n) {
    if (multiple > 4 * n) multiple = 8 * n - multiple;
    if (multiple < 2 * n) return {static_cast<std::ptrdiff_t>((multiple - 1) / 2), false};
    return {static_cast<std::ptrdiff_t>((4 * n - multiple - 1) / 2), true};
}

Folded inputOf(long long j, long long n) { return fold(j + n * ((1 - j) & 7), n); }

Folded outputOf(long long l, long long n) {
    const long long e = 8 * l % n;
    return fold(e + n * ((7 - e) & 7), n);
}

template <class Real>
Real lanesSum(VectorOf<Real> v) {
    alignas(16) Real lane[sums<Real>];
    storeAligned(lane, v);
    Real sum = 0;
    for (const Real value : lane) sum += value;
    return sum;
}

// Adds vectors in runs, and the runs in pairs: errors grow with the logarithm of their number.
template <class Real>
class PairwiseSum {
public:
    void add(VectorOf<Real> v) {
        run_ = inRun_ == 0 ? v : simd::add(run_, v);
        if (++inRun_ == runLength) finishRun();
    }

    VectorOf<Real> total() {
        if (inRun_ > 0) finishRun();
        VectorOf<Real> sum{};
        for (int level = 0; runs_ >> level > 0; ++level)
            if (runs_ >> level & 1) sum = simd::add(sum, sums_[level]);
        return sum;
    }

private:
    void finishRun() {
        int level = 0;
        for (; runs_ >> level & 1; ++level) run_ = simd::add(run_, sums_[level]);
        sums_[level] = run_;
        ++runs_;
        inRun_ = 0;
    }

    static constexpr int runLength = 16;
    // Enough for every length that an int tells.
    static constexpr int levels =
        std::numeric_limits<unsigned>::digits - std::countr_zero(unsigned{blockLength * runLength});
    VectorOf<Real> sums_[levels] = {};
    VectorOf<Real> run_ = {};
    unsigned runs_ = 0;
    int inRun_ = 0;
};

// Cosine and sine of 2 pi il/N, i = 0 .. blockLength-1.
template <class Real>
struct BlockAngles {
    alignas(16) Real cosine[blockLength], sine[blockLength];

    BlockAngles(const Real* table, int n, int l) {
        constexpr Real half = static_cast<Real>(0.70710678118654752440);
        for (int i = 0, at = 0; i < blockLength; ++i) {
            const Real there = table[at], back = table[at == 0 ? 0 : n - at];
            cosine[i] = half * (there + back);
            sine[i] = half * (there - back);
            at = at < n - l ? at + l : at - (n - l);
        }
    }
};

template <class Real>
struct HartleyPair {
    Real at, mirrored;   // H_l and H_{N-l}
};

// `inputs` are the inputs 1 .. n-1 of the Hartley transform.
template <class Real>
HartleyPair<Real> hartleyPair(const Real* inputs, Real first, const Real* table, int n, int l) {
    const BlockAngles<Real> angles(table, n, l);
    PairwiseSum<Real> there, back;
    const int blockStep = static_cast<int>((long long)(blockLength)*l % n);
    for (int start = 0, at = l; start < n - 1; start += blockLength) {
        VectorOf<Real> u{}, v{};
        for (int i = 0; i < blockLength; i += sums<Real>) {
            const VectorOf<Real> x = loadAligned<VectorOf<Real>>(inputs + start + i);
            u = add(u, mul(x, loadAligned<VectorOf<Real>>(angles.cosine + i)));
            v = add(v, mul(x, loadAligned<VectorOf<Real>>(angles.sine + i)));
        }
        const VectorOf<Real> c = loadEverywhere<VectorOf<Real>>(table + at);
        const VectorOf<Real> s = loadEverywhere<VectorOf<Real>>(table + (at == 0 ? 0 : n - at));
        there.add(add(mul(c, u), mul(s, v)));
        back.add(sub(mul(s, u), mul(c, v)));
        at = at < n - blockStep ? at + blockStep : at - (n - blockStep);
    }
    return {table[0] * first + lanesSum<Real>(there.total()),
            table[0] * first + lanesSum<Real>(back.total())};
}

}   // namespace

template <class Real>
void oddTransform(const Real* src, Real* dst, int len, const Real* table, Real* scratch) {
    const auto input = [&](int j) {
        const Folded from = inputOf(j, len);
        return from.negative ? -src[from.index] : src[from.index];
    };
    const auto output = [&](int l, Real value) {
        const Folded to = outputOf(l, len);
        dst[to.index] = to.negative ? -value : value;
    };
    const Real first = input(0);
    for (int j = 1; j < len; ++j) scratch[j - 1] = input(j);
    for (int l = 0; l <= (len - 1) / 2; ++l) {
        const HartleyPair<Real> pair = hartleyPair(scratch, first, table, len, l);
        output(l, pair.at);
        if (l > 0) output(len - l, pair.mirrored);
    }
}

template void oddTransform<float>(const float*, float*, int, const float*, float*);
template void oddTransform<double>(const double*, double*, int, const double*, double*);

}   // namespace kfm::dct4
