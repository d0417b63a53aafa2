// A DCT-IV from its codelets alone: the tables they read, made in extended precision, and the order
// in which a transform calls them.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <deque>
#include <vector>

#include "dct4/codelets.h"
#include "support/dct4_definition.h"

namespace kfm::tests {

// Calls body.operator()<size>() for a power of two from `first` to `last`.
template <int first, int last>
void withSize(int size, auto&& body) {
    if (size == first) body.template operator()<first>();
    else if constexpr (first < last) withSize<2 * first, last>(size, body);
    else std::abort();
}

// Elements that start at a vector.
template <class Real>
class AlignedArray {
public:
    explicit AlignedArray(std::size_t size) : storage_(size + 16 / sizeof(Real)) {
        const auto address = reinterpret_cast<std::uintptr_t>(storage_.data());
        first_ = storage_.data() + (-address & 15) / sizeof(Real);
    }
    AlignedArray(const AlignedArray&) = delete;
    Real* data() { return first_; }
    Real& operator[](std::size_t i) { return first_[i]; }

private:
    std::vector<Real> storage_;
    Real* first_;
};

template <class Real>
void fillKernelTable(AlignedArray<Real>& table, long len, long d) {
    for (long q = 0; q < len / (2 * d); ++q)
        for (long r = 0; r < d; ++r) {
            const long double x = (2 * q + 1) * (2 * r + 1) / (4.0L * len);
            Real* pair = &table[q / 4 * 8 * d + 8 * r + q % 4];
            pair[0] = static_cast<Real>(cosPi(x));
            pair[4] = static_cast<Real>(sinPi(x));
        }
}

template <class Real>
void fillTwiddleTable(AlignedArray<Real>& table, long divisor, long blockRows) {
    for (long p = 0; p < blockRows; ++p)
        for (long s = 0; s < divisor; ++s) {
            const long double x = s * (4 * p + 1) / (2.0L * blockRows * divisor);
            table[2 * (p * divisor + s)] = static_cast<Real>(cosPi(x));
            table[2 * (p * divisor + s) + 1] = static_cast<Real>(sinPi(x));
        }
}

template <class Real>
class Dct4Walk {
public:
    // `divisors` of the levels of the recursion below m = len/d, none where m <= 64.
    Dct4Walk(int len, int d, const std::vector<int>& divisors)
        : len_(len), d_(d), work_(len), kernel_(len) {
        fillKernelTable(kernel_, len, d);
        int a = len / d;
        for (const int divisor : divisors) {
            levels_.emplace_back(a, divisor);
            a /= divisor;
        }
    }

    void run(const Real* src, Real* dst) {
        runInput(src);
        runOutput(dst);
    }

    void runInput(const Real* src) {
        if (levels_.empty())
            withSize<2, 64>(len_ / d_,
                            [&]<int m>() { dct4::inputStage<Real, m>(src, work_.data(), d_); });
        else split(0, src, src + (len_ - 1), 2 * d_, work_.data());
    }

    void runOutput(Real* dst) {
        withSize<4, 32>(d_, [&]<int d>() {
            dct4::outputStage<Real, d>(work_.data(), kernel_.data(), dst, len_);
        });
    }

private:
    struct Level {
        int divisor, blockLength, blockRows;
        AlignedArray<Real> table;
        Level(int a, int divisor)
            : divisor(divisor), blockLength(a / divisor), blockRows(a / divisor / 2), table(a) {
            fillTwiddleTable(table, divisor, blockRows);
        }
    };

    void split(std::size_t depth, const Real* front, const Real* back, std::ptrdiff_t step,
               Real* rows) {
        Level& level = levels_[depth];
        for (int s = 0; s < level.divisor; ++s) {
            Real* block = rows + std::ptrdiff_t(s) * level.blockLength * dct4::rowLength;
            const std::ptrdiff_t blockStep = step * level.divisor;
            if (depth + 1 < levels_.size())
                split(depth + 1, front + s * step, back - s * step, blockStep, block);
            else
                withSize<2, 64>(level.blockLength, [&]<int m>() {
                    dct4::inputBlock<Real, m>(front + s * step, back - s * step, blockStep, block);
                });
        }
        withSize<2, 32>(level.divisor, [&]<int divisor>() {
            (depth == 0
                 ? dct4::twiddleStageRoot<Real, divisor>
                 : dct4::twiddleStage<Real, divisor>)(rows, level.table.data(), level.blockRows);
        });
    }

    int len_, d_;
    AlignedArray<Real> work_, kernel_;
    std::deque<Level> levels_;
};

}   // namespace kfm::tests
