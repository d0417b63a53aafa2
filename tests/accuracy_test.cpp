// How far the outputs are from the definition summed in binary128, for every fixed function, flag
// and kind of input, against a committed bound per function; and what must hold exactly.
#include <cmath>
#include <cstdio>
#include <iomanip>
#include <sstream>

#include "support/committed_table.h"
#include "support/oracle.h"

namespace kfm::tests {
namespace {

// Units that no function exceeds. A single impulse is the hardest input of a convolution: every
// output is as large as the largest, and all of them are sums of many terms.
struct Promise {
    double forSignals, forImpulses;
};

Promise promiseOf(const Transform& transform) {
    // Products in double precision, but the sum of all samples in single precision.
    const bool mixed = !transform.element->complex && !transform.walshHadamard();
    if (mixed && !transform.element->doublePrecision) return {3.5, 3};
    return {5, transform.element->doublePrecision ? 5.0 : 6.0};
}

std::vector<Signal> impulses(const Transform& transform) {
    std::vector<Signal> signals;
    for (std::size_t i : positions(transform))
        signals.push_back(impulse(transform.sourceReals(), i));
    return signals;
}

// Constant, alternating, tones.
std::vector<Signal> regularSignals(const Transform& transform) {
    const auto reals = transform.sourceReals();
    const int length = transform.length;
    const std::size_t parts = transform.element->complex ? 2 : 1;
    std::vector<Signal> signals = {Signal(reals, 1)};
    Signal alternating(reals);
    for (std::size_t i = 0; i < reals; ++i) alternating[i] = i / parts % 2 ? -1 : 1;
    signals.push_back(alternating);
    for (int frequency : {1, length / 3, length - 1}) {
        Signal tone(reals);
        for (std::size_t i = 0; i < reals; ++i) {
            const UnitRoot w = unitRoot(static_cast<long>(i / parts) * frequency, length);
            tone[i] = static_cast<double>(i % parts ? w.im : w.re);
        }
        // Rounded to the element type before the oracle sees it.
        signals.push_back(decode(encode(tone, transform).data(), reals, transform));
    }
    return signals;
}

// Short lengths need more signals to come near their worst case; the longest ones cost most.
std::vector<Signal> randomSignals(const Transform& transform, int rounds = 1) {
    Random random(testSeed());
    std::vector<Signal> signals;
    const int count = transform.length > 128 ? 4 : 12 + 512 / transform.length;
    for (int i = 0; i < rounds * count; ++i) signals.push_back(randomSignal(transform, random));
    return signals;
}

double worstError(const Transform& transform, const std::vector<Signal>& signals) {
    double worst = 0;
    for (const Signal& signal : signals) {
        const auto unscaled = definition(transform, signal);
        for (int flag : allFlags) {
            auto expected = unscaled;
            for (Quad& value : expected) value *= scaleFactor(transform, flag);
            const Signal actual = run(transform, signal, flag);
            worst = std::max(worst, errorInUnits(transform, actual, expected));
        }
    }
    return worst;
}

class Accuracy : public testing::TestWithParam<Transform> {
public:
    static CommittedTable& table() {
        static CommittedTable table(
            "accuracy.txt",
            "# Worst error measured and the bound the tests hold it to, on signals and on single\n"
            "# impulses: max |error| over max |output| in units of 2^-24 (32) and 2^-53 (64).\n"
            "# Made by the build target update-accuracy.\n");
        return table;
    }

    static void TearDownTestSuite() {
        for (const auto& [kind, worst] : worst_)
            std::printf("worst error of %s: %.2f units, %s\n", kind.c_str(), worst.first,
                        worst.second.c_str());
    }

protected:
    static void note(const Transform& transform, const std::string& input, double error) {
        const std::string kind = std::string(transform.family->name) + " " +
                                 std::string(transform.element->suffix) + " on " + input;
        worst_[kind] = std::max(worst_[kind], std::pair(error, transform.name()));
    }

    static inline std::map<std::string, std::pair<double, std::string>> worst_;
};

// What is committed is measured over more signals than a run of the tests takes; two fifths more
// than that leaves room for another seed.
constexpr int roundsWhenUpdating = 4;

std::string columnsFor(double measured, double promised) {
    const double bound = std::min(promised, std::ceil(measured * 14) / 10);
    std::ostringstream columns;
    columns << std::fixed << std::setprecision(2) << measured << ' ' << bound;
    return columns.str();
}

TEST_P(Accuracy, StaysWithinCommittedBound) {
    const Transform& transform = GetParam();
    const int rounds = table().updating() ? roundsWhenUpdating : 1;
    const double onSignals = std::max(worstError(transform, randomSignals(transform, rounds)),
                                      worstError(transform, regularSignals(transform)));
    const double onImpulses = worstError(transform, impulses(transform));
    const Promise promise = promiseOf(transform);
    note(transform, "signals", onSignals);
    note(transform, "impulses", onImpulses);
    if (table().updating())
        table().record(transform.name(), columnsFor(onSignals, promise.forSignals) + "  " +
                                             columnsFor(onImpulses, promise.forImpulses));
    std::istringstream row(table().expected(transform.name()));
    for (const auto& [error, promised] :
         {std::pair(onSignals, promise.forSignals), std::pair(onImpulses, promise.forImpulses)}) {
        double measured = 0, bound = 0;
        ASSERT_TRUE(row >> measured >> bound) << "no row in the table; worst error is " << error;
        EXPECT_LE(error, bound) << "seed " << testSeed() << "; when committed " << measured;
        EXPECT_LE(bound, promised);
        EXPECT_LE(bound, 2 * std::max(measured, 0.1)) << "a bound far above the measured error";
    }
}

TEST_P(Accuracy, ImpulseAtZeroGivesTheScaleFactorExactly) {
    const Transform& transform = GetParam();
    const Signal source = impulse(transform.sourceReals(), 0);
    const auto unscaled = definition(transform, source);   // ones and zeros
    for (int flag : allFlags) {
        const Signal output = run(transform, source, flag);
        for (std::size_t i = 0; i < output.size(); ++i)
            ASSERT_EQ(output[i], unscaled[i] * roundedScaleFactor(transform, flag))
                << "flag " << flag << ", output " << i;
    }
}

TEST_P(Accuracy, FlagsWithEqualFactorGiveEqualBits) {
    const Transform& transform = GetParam();
    for (const Signal& signal : randomSignals(transform)) {
        const Bytes source = encode(signal, transform);
        for (int flag : {kfmScaleFwdByN, kfmScaleInvByN})
            if (!dividesByN(transform, flag)) {
                ASSERT_EQ(run(transform, source, flag), run(transform, source, kfmScaleNone));
            }
        if (transform.selfInverse()) {
            ASSERT_EQ(run(transform, source, kfmScaleFwdByN),
                      run(transform, source, kfmScaleInvByN));
        }
    }
}

// Sums and products by constants commute with a power of two; so no constant is added anywhere,
// nothing overflows early and nothing is flushed.
TEST_P(Accuracy, PowersOfTwoPassThroughExactly) {
    const Transform& transform = GetParam();
    Random random(testSeed());
    const Signal signal = randomSignal(transform, random);
    const int limit = transform.element->doublePrecision ? 900 : 100;
    for (int exponent : {limit, -limit / 2}) {
        Signal scaled = signal, expected = run(transform, signal, kfmScaleBySqrtN);
        for (double& value : scaled) value = std::ldexp(value, exponent);
        for (double& value : expected) value = std::ldexp(value, exponent);
        ASSERT_EQ(run(transform, scaled, kfmScaleBySqrtN), expected) << "2^" << exponent;
    }
}

KFM_FOR_EVERY_FIXED_TRANSFORM(Accuracy);

// A transform and the one that takes it back: the inverse DFT from the same layout, or itself.
std::vector<Transform> forwardTransforms() {
    std::vector<Transform> result;
    for (const Transform& transform : fixedTransforms())
        if (!transform.inverse()) result.push_back(transform);
    return result;
}

const Transform* inverseOf(const Transform& forward) {
    if (forward.selfInverse()) return &forward;
    const std::string_view name = forward.family->name;
    const std::size_t to = name.find("To");
    const std::string inverse =
        "DFTInv_" + std::string(name.substr(to + 2)) + "To" + std::string(name.substr(7, to - 7));
    return findTransform(inverse, forward.length, forward.element->suffix);
}

class RoundTrip : public testing::TestWithParam<Transform> {};

TEST_P(RoundTrip, RestoresTheSignal) {
    const Transform& forward = GetParam();
    const Transform* inverse = inverseOf(forward);
    ASSERT_NE(inverse, nullptr);
    for (const Signal& signal : randomSignals(forward)) {
        const std::vector<Quad> expected(signal.begin(), signal.end());
        for (const auto& [there, back] :
             {std::pair(kfmScaleFwdByN, kfmScaleNone), std::pair(kfmScaleNone, kfmScaleInvByN),
              std::pair(kfmScaleBySqrtN, kfmScaleBySqrtN)}) {
            const Signal restored = run(*inverse, run(forward, signal, there), back);
            ASSERT_LE(errorInUnits(*inverse, restored, expected), 10)
                << "flags " << there << ", " << back;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, RoundTrip, testing::ValuesIn(forwardTransforms()), caseName);

TEST(AccuracyTable, NamesEveryFunctionOnly) {
    EXPECT_TRUE(Accuracy::table().namesEveryFunctionOnly());
}

}   // namespace
}   // namespace kfm::tests
