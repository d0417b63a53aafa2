// Frames of an array: what is inside of it, and that they go through the functions of rows as they
// should.
#include <array>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "kfmrows.hpp"

namespace kfm::tests {
namespace {

using C = std::complex<double>;

std::vector<C> table(std::size_t size) {
    std::vector<C> values(size);
    for (std::size_t i = 0; i < size; ++i) values[i] = {double(i * 7 % 13), double(i * 5 % 11)};
    return values;
}

TEST(Frames, KnowWhetherTheyAreInsideTheirArray) {
    std::array<float, 12> array{};
    for (std::size_t first = 0; first < 14; ++first)
        for (std::size_t count = 1; count < 5; ++count)
            for (std::size_t length = 1; length < 5; ++length)
                for (std::ptrdiff_t stride = -5; stride <= 5; ++stride)
                    for (std::ptrdiff_t distance = -5; distance <= 5; ++distance) {
                        bool inside = true;
                        for (std::size_t r = 0; r < count; ++r)
                            for (std::size_t k = 0; k < length; ++k) {
                                const std::ptrdiff_t at = std::ptrdiff_t(first) +
                                                          std::ptrdiff_t(k) * stride +
                                                          std::ptrdiff_t(r) * distance;
                                inside = inside && at >= 0 && at < 12;
                            }
                        const Frames<float> frames(array, count, length, first, stride, distance);
                        ASSERT_EQ(frames.insideArray(), inside);
                    }
    EXPECT_FALSE(Frames<float>(array, 2, 2, 0, 1, PTRDIFF_MAX).insideArray());
    EXPECT_FALSE(Frames<float>(array, SIZE_MAX, 2, 0, 1, 2).insideArray());
    EXPECT_FALSE(Frames<float>(array, 2, 2, 11, 0, PTRDIFF_MIN).insideArray());
    EXPECT_FALSE(Frames(array, 5).insideArray()) << "a rest of two";
    EXPECT_FALSE(Frames(array, 0).insideArray());
    EXPECT_FALSE(Frames<float>::columns(array, 0).insideArray());
    EXPECT_EQ(Frames<float>::columns(array, 4).length(), 3u);
}

TEST(Frames, AreTransformedOneByOne) {
    const std::vector<C> source = table(6 * 10);
    for (const bool columns : {false, true}) {
        std::vector<C> result(source.size());
        const auto frames = [&]<class Value>(std::vector<Value>& array) {
            return columns ? Frames<Value>::columns(array, 6) : Frames<Value>(array, 10);
        };
        std::vector<C> copy = source;
        ASSERT_TRUE(transform<Dft>(frames(copy), frames(result), Scale::none));
        for (int r = 0; r < 6; ++r) {
            std::vector<C> frame(10), expected(10);
            const auto at = [&](int k) { return columns ? 6 * k + r : 10 * r + k; };
            for (int k = 0; k < 10; ++k) frame[k] = source[at(k)];
            ASSERT_TRUE((transform<Dft, 10>(frame, expected, Scale::none)));
            for (int k = 0; k < 10; ++k) EXPECT_EQ(result[at(k)], expected[k]);
        }
    }
}

TEST(Frames, ComeBackByEveryFamily) {
    const auto comeBack = []<class Forward, class Inverse>(Forward, Inverse, std::size_t spectrum) {
        std::vector<double> signal(5 * 16), bins(5 * spectrum), back(5 * 16);
        for (std::size_t i = 0; i < signal.size(); ++i) signal[i] = double(i * 7 % 13);
        const Frames from(signal, 16), middle(bins, spectrum), to(back, 16);
        ASSERT_TRUE(transform<Forward>(from, middle, Scale::bySqrtN));
        ASSERT_TRUE(transform<Inverse>(middle, to, Scale::bySqrtN));
        for (std::size_t i = 0; i < signal.size(); ++i) EXPECT_NEAR(back[i], signal[i], 1e-13);
    };
    comeBack(RealDft<Layout::ccs>(), InverseRealDft<Layout::ccs>(), 18);
    comeBack(RealDft<Layout::pack>(), InverseRealDft<Layout::pack>(), 16);
    comeBack(RealDft<Layout::perm>(), InverseRealDft<Layout::perm>(), 16);
    comeBack(Hartley(), Hartley(), 16);
    comeBack(Wht(), Wht(), 16);
    std::vector<C> complex = table(48), original = complex;
    const Frames frames(complex, 16);
    ASSERT_TRUE(transform<Dft>(frames, frames));
    ASSERT_TRUE(transform<InverseDft>(frames, frames));
    for (std::size_t i = 0; i < 48; ++i) EXPECT_NEAR(std::abs(complex[i] - original[i]), 0, 1e-13);
}

TEST(Frames, RefuseWhatDoesNotFit) {
    std::vector<float> signal(64, 1), other(64, 7);
    const std::vector<float> untouched = other;
    const auto refused = [&](const Frames<float>& from, const Frames<float>& to) {
        EXPECT_EQ(transform<Hartley>(from, to).status(), kfmErrSize);
        EXPECT_EQ(other, untouched);
    };
    refused(Frames(signal, 8), Frames(other, 16));
    refused(Frames(signal, 7), Frames(other, 7));
    refused(Frames<float>(signal, 4, 16, 1, 1, 16), Frames(other, 16));
    refused(Frames<float>(signal, 4, 16, 0, 1, 16), Frames<float>(other, 3, 16, 0, 1, 16));
    EXPECT_EQ(transform<Wht>(Frames<float>(signal, 4, 12, 0, 1, 16),
                             Frames<float>(other, 4, 12, 0, 1, 16))
                  .status(),
              kfmErrSize);
}

TEST(Frames, OfThePlannedTransform) {
    std::vector<float> signal(4 * 64), result(signal.size()), expected(64);
    for (std::size_t i = 0; i < signal.size(); ++i) signal[i] = float(i * 7 % 13);
    Dct4<float> plan(64);
    const auto columns = Frames<float>::columns(signal, 4);
    ASSERT_TRUE(transform(columns, Frames<float>::columns(result, 4), plan));
    for (int r = 0; r < 4; ++r) {
        std::vector<float> frame(64);
        for (int k = 0; k < 64; ++k) frame[k] = signal[4 * k + r];
        ASSERT_TRUE(plan(frame, expected));
        for (int k = 0; k < 64; ++k) EXPECT_EQ(result[4 * k + r], expected[k]);
    }
    EXPECT_EQ(transform(Frames(signal, 32), Frames(result, 32), plan).status(), kfmErrSize);
}

TEST(Frames, WalshHadamardInABuffer) {
    const std::size_t size = whtFramesBufferSize<double>(2048).orThrow();
    std::vector<std::byte> memory(size + 16);
    std::byte* const aligned =
        memory.data() + (16 - reinterpret_cast<std::uintptr_t>(memory.data()) % 16) % 16;
    std::vector<double> signal(2 * 2048), result(signal.size());
    signal[0] = 1;
    const Frames from(signal, 2048), to(result, 2048);
    ASSERT_TRUE(transform<Wht>(from, to, Scale::none, std::span(aligned, size)));
    EXPECT_EQ(result[2047], 1);
    EXPECT_EQ(result[2048], 0);
    EXPECT_EQ(transform<Wht>(from, to, Scale::none, std::span(aligned, size - 1)).status(),
              kfmErrSize);
}

}   // namespace
}   // namespace kfm::tests
