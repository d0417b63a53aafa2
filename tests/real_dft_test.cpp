// What holds exactly for the packed spectra of the real DFT and for signals with zeros in their
// spectrum; and what the products in double precision are for.
#include <bit>
#include <cmath>
#include <limits>

#include "support/symmetric_pairs.h"

namespace kfm::tests {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// Tells zeros apart by their sign.
bool isPositiveZero(double value) { return std::bit_cast<std::uint64_t>(value) == 0; }

std::vector<Transform> transformsWhere(bool (*chosen)(const Transform&)) {
    std::vector<Transform> result;
    for (const Transform& transform : fixedTransforms())
        if (chosen(transform)) result.push_back(transform);
    return result;
}

bool isPrime(int n) {
    for (int d = 2; d * d <= n; ++d)
        if (n % d == 0) return false;
    return n > 1;
}

// The same function for another layout than CCS.
const Transform& inLayout(const Transform& transform, std::string_view layout) {
    std::string family(transform.family->name);
    family.replace(family.find("CCS"), 3, layout);
    return *findTransform(family, transform.length, transform.element->suffix);
}

// The CCS spectrum in the order of another layout.
Signal moved(const Signal& ccs, Content layout, int length) {
    Signal result;
    for (const Slot& slot : slots(layout, length))
        result.push_back(ccs[2 * slot.bin + slot.imaginary]);
    return result;
}

class PackedSpectrum : public testing::TestWithParam<Transform> {
protected:
    Random random_{testSeed()};
};

TEST_P(PackedSpectrum, LayoutsHoldTheSameBits) {
    const Transform& ccs = GetParam();
    for (std::string_view layout : {"Pack", "Perm"}) {
        const Transform& packed = inLayout(ccs, layout);
        for (int flag : allFlags) {
            const Signal source = randomSignal(ccs, random_);
            const Signal output = run(ccs, source, flag);
            if (ccs.inverse())
                ASSERT_EQ(run(packed, moved(source, packed.source(), ccs.length), flag), output);
            else
                ASSERT_EQ(run(packed, source, flag),
                          moved(output, packed.destination(), ccs.length));
        }
    }
}

TEST_P(PackedSpectrum, ZeroPartsAreWrittenAndNeverRead) {
    const Transform& ccs = GetParam();
    const std::vector<Slot> spectrum = slots(Content::ccs, ccs.length);
    for (int flag : allFlags)
        for (double value : {1.0, -1.0, HUGE_VAL, nan}) {
            Signal source = randomSignal(ccs, random_);
            Signal changed = source;
            if (ccs.inverse()) {
                for (std::size_t i = 0; i < changed.size(); ++i)
                    if (!ccs.reads(i)) changed[i] = value;
                ASSERT_EQ(run(ccs, changed, flag), run(ccs, source, flag)) << value;
                continue;
            }
            for (double& sample : changed) sample *= value;
            const Signal output = run(ccs, changed, flag);
            for (std::size_t i = 0; i < output.size(); ++i)
                if (spectrum[i].alwaysZero(ccs.length)) {
                    ASSERT_TRUE(isPositiveZero(output[i])) << "element " << i;
                }
        }
}

INSTANTIATE_TEST_SUITE_P(, PackedSpectrum,
                         testing::ValuesIn(transformsWhere([](const Transform& transform) {
                             return transform.family->name.find("CCS") != std::string_view::npos;
                         })),
                         caseName);

class Zeros : public testing::TestWithParam<Transform> {};

TEST_P(Zeros, SilenceGivesPositiveZeros) {
    const Transform& transform = GetParam();
    Signal silence(transform.sourceReals());
    for (std::size_t i = 0; i < silence.size(); ++i)
        if (!transform.reads(i)) silence[i] = nan;
    for (int flag : allFlags)
        for (double value : run(transform, silence, flag)) ASSERT_TRUE(isPositiveZero(value));
}

INSTANTIATE_TEST_SUITE_P(, Zeros, testing::ValuesIn(transformsWhere([](const Transform& transform) {
                             return !transform.element->complex;
                         })),
                         caseName);

class Mirrored : public testing::TestWithParam<Transform> {};

TEST_P(Mirrored, SignalsHavePositiveZeroImaginaryParts) {
    const Transform& transform = GetParam();
    Random random(testSeed());
    for (int round = 0; round < 20; ++round) {
        Signal signal = randomSignal(transform, random);
        for (std::size_t i = 1; i < signal.size(); ++i) signal[i] = signal[signal.size() - i];
        const std::vector<Slot> spectrum = slots(transform.destination(), transform.length);
        const Signal output = run(transform, signal, kfmScaleBySqrtN);
        for (std::size_t i = 0; i < output.size(); ++i)
            if (spectrum[i].imaginary) {
                ASSERT_TRUE(isPositiveZero(output[i])) << "bin " << spectrum[i].bin;
            }
    }
}

INSTANTIATE_TEST_SUITE_P(, Mirrored,
                         testing::ValuesIn(transformsWhere([](const Transform& transform) {
                             const int n = transform.length;
                             return !slots(transform.destination(), n).empty() &&
                                    (isPrime(n) || (n <= 10 && n % 2 == 0));
                         })),
                         caseName);

// CCS spectrum by symmetric pairs, all in single precision.
Signal allSingle(const Signal& source) {
    const PairTransform<float, float> pairs({source.begin(), source.end()});
    Signal ccs = {pairs.total, 0};
    for (std::size_t k = 0; k < pairs.bins.cosines.size(); ++k)
        ccs.insert(ccs.end(), {pairs.bins.cosines[k], -pairs.bins.sines[k]});
    return ccs;
}

class MixedPrecision : public testing::TestWithParam<Transform> {};

TEST_P(MixedPrecision, ReducesTheMeanErrorOfPrimeLengths) {
    const Transform& transform = GetParam();
    Random random(testSeed());
    double mixed = 0, single = 0;
    for (int round = 0; round < 100; ++round) {
        const Signal source = randomSignal(transform, random);
        const auto expected = definition(transform, source);
        mixed += errorInUnits(transform, run(transform, source, kfmScaleNone), expected);
        single += errorInUnits(transform, allSingle(source), expected);
    }
    EXPECT_LT(mixed, single);
}

INSTANTIATE_TEST_SUITE_P(, MixedPrecision,
                         testing::ValuesIn(transformsWhere([](const Transform& transform) {
                             return transform.family->name == "DFTFwd_RToCCS" &&
                                    !transform.element->doublePrecision && transform.length > 2 &&
                                    isPrime(transform.length);
                         })),
                         caseName);

}   // namespace
}   // namespace kfm::tests
