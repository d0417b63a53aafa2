// The public calls by precision, the lengths there are, and a specification in memory of the test.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "kfmgen.h"

namespace kfm::tests {

template <class Real>
struct Dct4;

#define KFM_DCT4_TEST_CALLS(precision, Real)                             \
    template <>                                                          \
    struct Dct4<Real> {                                                  \
        using Spec = KfmDCT4Spec_##precision;                            \
        static constexpr const char* suffix = #precision;                \
        static constexpr auto getSize = kfmgDCT4GetSize_##precision;     \
        static constexpr auto init = kfmgDCT4Init_##precision;           \
        static constexpr auto initAlloc = kfmgDCT4InitAlloc_##precision; \
        static constexpr auto free = kfmgDCT4Free_##precision;           \
        static constexpr auto transform = kfmgDCT4_##precision;          \
    };
KFM_DCT4_TEST_CALLS(32f, Kfm32f)
KFM_DCT4_TEST_CALLS(64f, Kfm64f)
#undef KFM_DCT4_TEST_CALLS

using Precisions = testing::Types<Kfm32f, Kfm64f>;

// What is accepted, in order, up to `longest`: powers of two, and from 33 on one more than them.
inline std::vector<int> acceptedLengths(int longest) {
    std::vector<int> lengths;
    for (int power = 2; power <= longest; power *= 2) {
        lengths.push_back(power);
        if (power >= 32 && power < longest) lengths.push_back(power + 1);
    }
    return lengths;
}

template <class Real>
int sizeOf(int length) {
    int size = 0;
    EXPECT_EQ(Dct4<Real>::getSize(length, &size), kfmOk) << length;
    return size;
}

// A block aligned to 64 bytes with a plan in it.
template <class Real>
class Specification {
public:
    explicit Specification(int length)
        : block_(static_cast<Kfm8u*>(std::aligned_alloc(64, wholeLines(sizeOf<Real>(length)))),
                 &std::free) {
        EXPECT_EQ(Dct4<Real>::init(&handle_, length, block_.get()), kfmOk) << length;
    }

    typename Dct4<Real>::Spec* handle() const { return handle_; }
    Kfm8u* block() const { return block_.get(); }

private:
    static std::size_t wholeLines(int bytes) {
        return (static_cast<std::size_t>(bytes) + 63) / 64 * 64;
    }

    std::unique_ptr<Kfm8u, decltype(&std::free)> block_;
    typename Dct4<Real>::Spec* handle_ = nullptr;
};

template <class Real>
std::vector<Real> transformed(const std::vector<Real>& source,
                              const typename Dct4<Real>::Spec* spec) {
    std::vector<Real> result(source.size());
    EXPECT_EQ(Dct4<Real>::transform(source.data(), result.data(), spec), kfmOk);
    return result;
}

}   // namespace kfm::tests
