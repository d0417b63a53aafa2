// The real transforms of the shortest lengths have the bits of their written-out formulas, down to
// the signs of zeros.
#include <cmath>
#include <cstring>

#include "support/formulas.h"
#include "support/oracle.h"

namespace kfm::tests {
namespace {

using Lengths = std::initializer_list<int>;

std::vector<Transform> transformsOf(const char* family, Lengths lengths) {
    std::vector<Transform> result;
    for (int length : lengths)
        for (const char* element : {"32f", "64f"})
            result.push_back(*findTransform(family, length, element));
    return result;
}

std::vector<Transform> together(std::initializer_list<std::vector<Transform>> lists) {
    std::vector<Transform> result;
    for (const auto& list : lists) result.insert(result.end(), list.begin(), list.end());
    return result;
}

// Longer kernels group their sums as they like. That shows in the last bit of double precision and
// of the sum of all samples, which is taken in single precision, but not in sums that are rounded
// from double to single precision.
bool groupsAtWill(const Transform& transform) {
    const int length = transform.length;
    return length > 10 || (transform.inverse() && (length == 5 || length == 7));
}

// The other layouts have the values of CCS.
std::vector<Transform> writtenOut() {
    auto all = together({transformsOf("DFTFwd_RToCCS", {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 14, 22}),
                         transformsOf("DFTInv_CCSToR", {2, 3, 4, 5, 7, 8, 11}),
                         transformsOf("Hartley", {2, 3, 4, 5, 7, 8, 11, 23, 47})});
    std::erase_if(all, [](const Transform& transform) {
        return transform.element->doublePrecision && groupsAtWill(transform);
    });
    return all;
}

class ShortLengths : public testing::TestWithParam<Transform> {};

TEST_P(ShortLengths, HaveTheBitsOfTheirFormulas) {
    const Transform& transform = GetParam();
    Random random(testSeed());
    for (int round = 0; round < 200; ++round) {
        const Signal source = randomSignal(transform, random);
        for (int flag : allFlags) {
            const Signal expected = formulaOutput(transform, source, flag);
            const Signal output = run(transform, source, flag);
            for (std::size_t i = groupsAtWill(transform); i < output.size(); ++i)
                ASSERT_EQ(output[i], expected[i]) << "output " << i << ", flag " << flag;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ShortLengths, testing::ValuesIn(writtenOut()), caseName);

// All signals of zeros of both signs where there are few, else some of them, and the same with ones
// among them, whose sums cancel.
std::vector<Signal> signedZeros(const Transform& transform) {
    const std::size_t reals = transform.sourceReals();
    const std::size_t free = std::min<std::size_t>(reals, 10);
    std::vector<Signal> signals;
    for (unsigned bits = 0; bits < 1u << free; ++bits) {
        Signal& signal = signals.emplace_back(reals, 0.0);
        for (std::size_t i = 0; i < free; ++i) signal[i] = bits >> i & 1 ? -0.0 : 0.0;
    }
    Random random(testSeed());
    for (int round = 0; round < 400; ++round) {
        Signal& signal = signals.emplace_back(reals);
        for (double& value : signal) {
            value = std::floor(random.uniform(53) * (round % 2 ? 3 : 1));
            if (random.uniform(53) < 0) value = -value;
            if (round % 2 == 0) value = std::copysign(0, value);
        }
    }
    return signals;
}

class SignsOfZeros : public testing::TestWithParam<Transform> {};

TEST_P(SignsOfZeros, AreThoseOfTheFormulas) {
    const Transform& transform = GetParam();
    for (const Signal& source : signedZeros(transform)) {
        const Signal expected = formulaOutput(transform, source, kfmScaleNone);
        const Signal output = run(transform, source, kfmScaleNone);
        for (std::size_t i = 0; i < output.size(); ++i)
            if (expected[i] == 0 && output[i] == 0) {
                ASSERT_EQ(std::signbit(output[i]), std::signbit(expected[i]))
                    << "output " << i << " of " << testing::PrintToString(source);
            }
    }
}

INSTANTIATE_TEST_SUITE_P(
    , SignsOfZeros,
    testing::ValuesIn(together({transformsOf("DFTFwd_RToCCS", {2, 3, 4, 5, 6, 7, 8, 10}),
                                transformsOf("DFTInv_CCSToR", {2, 3, 4, 5, 7, 8}),
                                transformsOf("Hartley", {2, 3, 4, 5, 7, 8, 11, 23, 47})})),
    caseName);

// An imaginary part that has to change its sign is subtracted from zero.
class ImaginaryParts : public testing::TestWithParam<Transform> {};

TEST_P(ImaginaryParts, AreNeverNegativeZeros) {
    const Transform& transform = GetParam();
    for (const Signal& source : signedZeros(transform)) {
        const Signal output = run(transform, source, kfmScaleBySqrtN);
        for (std::size_t i = 3; i < output.size(); i += 2)
            ASSERT_FALSE(output[i] == 0 && std::signbit(output[i]))
                << "element " << i << " of " << testing::PrintToString(source);
    }
}

INSTANTIATE_TEST_SUITE_P(, ImaginaryParts,
                         testing::ValuesIn(transformsOf("DFTFwd_RToCCS",
                                                        {3, 4, 5, 7, 8, 11, 13, 17, 19, 23, 29, 31,
                                                         37, 41, 43, 47, 53, 59, 61})),
                         caseName);

// The even outputs of 16 points are the transform of the eight sums x[n] + x[n+8].
class Hartley16 : public testing::TestWithParam<Transform> {};

TEST_P(Hartley16, ContainsTheTransformOfEightPoints) {
    const Transform& sixteen = GetParam();
    const Transform& eight = *findTransform("Hartley", 8, sixteen.element->suffix);
    Random random(testSeed());
    for (int round = 0; round < 500; ++round) {
        const Signal source = randomSignal(sixteen, random);
        Signal sums(8);
        for (int n = 0; n < 8; ++n) sums[n] = source[n] + source[n + 8];
        const Bytes expected = run(eight, encode(sums, eight), kfmScaleNone);
        const Signal whole = run(sixteen, source, kfmScaleNone);
        Signal even(8);
        for (int k = 0; k < 8; ++k) even[k] = whole[2 * k];
        ASSERT_EQ(encode(even, eight), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(, Hartley16, testing::ValuesIn(transformsOf("Hartley", {16})), caseName);

// By hand, and with each scale factor.
TEST(ShortestLength, HasTheKnownOutputs) {
    const auto output = [](const char* family, const Signal& source, int flag) {
        return run(*findTransform(family, 2, "64f"), source, flag);
    };
    EXPECT_EQ(output("DFTFwd_RToCCS", {1, 2}, kfmScaleNone), (Signal{3, 0, -1, 0}));
    EXPECT_EQ(output("DFTFwd_RToPack", {1, 2}, kfmScaleNone), (Signal{3, -1}));
    EXPECT_EQ(output("DFTFwd_RToPerm", {1, 2}, kfmScaleFwdByN), (Signal{1.5, -0.5}));
    EXPECT_EQ(output("DFTInv_CCSToR", {3, 99, -1, 99}, kfmScaleInvByN), (Signal{1, 2}));
    EXPECT_EQ(output("DFTInv_CCSToR", {3, 99, -1, 99}, kfmScaleFwdByN), (Signal{2, 4}));
    // The real DFT rounds the root before it divides.
    EXPECT_EQ(output("DFTInv_PackToR", {1, 0}, kfmScaleBySqrtN), Signal(2, 0.7071067811865475));
    EXPECT_EQ(output("Hartley", {1, 0}, kfmScaleBySqrtN), Signal(2, 0.7071067811865476));
}

}   // namespace
}   // namespace kfm::tests
