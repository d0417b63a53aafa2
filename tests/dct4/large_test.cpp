// Lengths whose definition takes too long to be computed at every output: their plans, and
// transforms of signals that are made of a few known terms.
#include <sys/mman.h>

#include <cmath>

#include "dct4/specification.h"
#include "support/buffer.h"
#include "support/fault.h"

namespace kfm::tests {
namespace {

template <class Real>
class LargeLengths : public testing::Test {};
TYPED_TEST_SUITE(LargeLengths, Precisions);

constexpr std::size_t page = 4096;

// What Init answers when it is given the first page of a block only: a length that is refused never
// gets to its end, one that is planned does.
template <class Real>
bool beginsPlan(int length) {
    GuardedBuffer block(page);
    typename Dct4<Real>::Spec* spec = nullptr;
    KfmStatus status = kfmOk;
    const bool returned = survives(
        [&] { status = Dct4<Real>::init(&spec, length, reinterpret_cast<Kfm8u*>(block.data())); });
    EXPECT_TRUE(!returned || status == kfmErrSize) << length;
    return !returned;
}

TYPED_TEST(LargeLengths, ArePlannedWhereTheyHaveASize) {
    for (int exponent = 12; exponent < 31; ++exponent)
        for (const int above : {-1, 0, 1, 2}) {
            const int length = static_cast<int>((1u << exponent) + static_cast<unsigned>(above));
            int size = 0;
            const bool accepted = Dct4<TypeParam>::getSize(length, &size) == kfmOk;
            EXPECT_EQ(beginsPlan<TypeParam>(length), accepted) << length;
            if (accepted && exponent <= 22) {
                const Specification<TypeParam> specification(length);
                EXPECT_NE(specification.handle(), nullptr) << length;
            }
        }
}

// Kernel element (n, k) of a transform of `length`, reduced exactly.
double kernel(std::int64_t n, std::int64_t k, std::int64_t length) {
    return std::cos(M_PI * static_cast<double>((2 * n + 1) * (2 * k + 1) % (8 * length)) /
                    (4.0 * static_cast<double>(length)));
}

// Impulses, whose output is a sum of kernel rows, and rows of the kernel, whose output is an
// impulse of length/2: together every input counts, and the sum of one output is the largest.
template <class Real>
void expectTransform(int length) {
    SCOPED_TRACE(length);
    const std::int64_t waves[] = {0, length / 3, length - 1};
    const std::int64_t impulses[] = {0, 1, length / 2, length / 5 * 3, length - 2, length - 1};
    const double height = std::sqrt(static_cast<double>(length));
    std::vector<Real> signal(static_cast<std::size_t>(length));
    for (int n = 0; n < length; ++n) {
        double sum = 0;
        for (const std::int64_t k : waves) sum += kernel(n, k, length);
        signal[static_cast<std::size_t>(n)] = static_cast<Real>(sum);
    }
    for (const std::int64_t n : impulses)
        signal[static_cast<std::size_t>(n)] += static_cast<Real>(height);

    const Specification<Real> specification(length);
    const auto result = transformed(signal, specification.handle());
    double worst = 0;
    const auto check = [&](std::int64_t k) {
        double expected = std::ranges::count(waves, k) * (length / 2.0);
        for (const std::int64_t n : impulses) expected += height * kernel(n, k, length);
        worst = std::max(worst, std::abs(result[static_cast<std::size_t>(k)] - expected));
    };
    for (std::int64_t k = 0; k<length; k += length> 100000 ? 61 : 1) check(k);
    for (const std::int64_t k : waves) check(k);
    const double units = std::ldexp(worst / (length / 2.0), sizeof(Real) == 4 ? 24 : 53);
    EXPECT_LE(units, 10);
    std::printf("%d elements of %zu bytes: worst error %.2f units\n", length, sizeof(Real), units);
}

// Three levels of recursion.
TYPED_TEST(LargeLengths, AreTransformed) { expectTransform<TypeParam>(1 << 22); }

// From here on the sum over blocks has a level more for each power of two.
TYPED_TEST(LargeLengths, OddOnesAreTransformed) {
    for (const int length : {32769, 65537}) expectTransform<TypeParam>(length);
}

}   // namespace
}   // namespace kfm::tests
