// The C++ face beside the C functions: the same bits for every family and length, refusals that write
// nothing, and half spectra read bin by bin.
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "kfmgen.hpp"
#include "support/signal.h"

namespace kfm::tests {
namespace {

template <class Family>
std::string nameOf();
#define KFM_NAME(Family, text)     \
    template <>                    \
    std::string nameOf<Family>() { \
        return text;               \
    }
KFM_NAME(Dft, "DFTFwd_CToC")
KFM_NAME(InverseDft, "DFTInv_CToC")
KFM_NAME(RealDft<Layout::ccs>, "DFTFwd_RToCCS")
KFM_NAME(RealDft<Layout::pack>, "DFTFwd_RToPack")
KFM_NAME(RealDft<Layout::perm>, "DFTFwd_RToPerm")
KFM_NAME(InverseRealDft<Layout::ccs>, "DFTInv_CCSToR")
KFM_NAME(InverseRealDft<Layout::pack>, "DFTInv_PackToR")
KFM_NAME(InverseRealDft<Layout::perm>, "DFTInv_PermToR")
KFM_NAME(Hartley, "Hartley")
KFM_NAME(Wht, "WHT")
#undef KFM_NAME

template <class FamilyType, class Number>
struct Variant {
    using Family = FamilyType;
    using T = Number;
    static constexpr bool byOrder = std::same_as<Family, Wht>;
    static constexpr bool complex = std::same_as<Family, Dft> || std::same_as<Family, InverseDft>;
    using Value = std::conditional_t<complex, std::complex<T>, T>;

    static const Transform& ofLength(int n) {
        const std::string element =
            std::string(sizeof(T) == 4 ? "32f" : "64f") + (complex ? "c" : "");
        const int argument = byOrder ? std::countr_zero(unsigned(n)) : n;
        return *findTransform(nameOf<Family>(), argument, element);
    }
};

template <class V>
class EveryFamily : public testing::Test {
protected:
    using Values = std::vector<typename V::Value>;

    static Values values(const Bytes& bytes) {
        Values result(bytes.size() / sizeof(typename V::Value));
        std::memcpy(result.data(), bytes.data(), bytes.size());
        return result;
    }
    static Bytes bytes(const Values& values) {
        Bytes result(values.size() * sizeof values[0]);
        std::memcpy(result.data(), values.data(), result.size());
        return result;
    }

    template <int n>
    static void compare(Scale scale) {
        const Transform& c = V::ofLength(n);
        Random random(n);
        const Bytes source = encode(randomSignal(c, random), c);
        const Bytes expected = run(c, source, int(scale));
        const Values src = values(source);
        Values fixed(c.destinationBytes() / sizeof src[0]), atRunTime(fixed.size());
        ASSERT_TRUE((transform<typename V::Family, n>(src, fixed, scale)));
        EXPECT_EQ(bytes(fixed), expected) << n;
        ASSERT_TRUE(transform<typename V::Family>(src, atRunTime, scale));
        EXPECT_EQ(bytes(atRunTime), expected) << n;
    }
};

template <class... Family>
using Both = testing::Types<Variant<Family, float>..., Variant<Family, double>...>;
using Variants = Both<Dft, InverseDft, RealDft<Layout::ccs>, RealDft<Layout::pack>,
                      RealDft<Layout::perm>, InverseRealDft<Layout::ccs>,
                      InverseRealDft<Layout::pack>, InverseRealDft<Layout::perm>, Hartley, Wht>;
TYPED_TEST_SUITE(EveryFamily, Variants);

TYPED_TEST(EveryFamily, HasTheFunctionOfEveryLength) {
    using F = detail::Functions<typename TypeParam::Family, typename TypeParam::T>;
    ASSERT_EQ(std::size(F::fixed), std::size_t(TypeParam::byOrder ? 13 : 63));
    for (int n = F::first; n <= F::last; ++n)
        EXPECT_EQ(reinterpret_cast<void*>(F::fixed[n - F::first]),
                  TypeParam::ofLength(TypeParam::byOrder ? 1 << n : n).function->address);
}

TYPED_TEST(EveryFamily, HasTheBitsOfC) {
    TestFixture::template compare<2>(Scale::none);
    TestFixture::template compare<16>(Scale::bySqrtN);
    TestFixture::template compare<64>(Scale::inverseByN);
    if constexpr (TypeParam::byOrder) TestFixture::template compare<8192>(Scale::forwardByN);
    else TestFixture::template compare<43>(Scale::forwardByN);
}

TYPED_TEST(EveryFamily, RefusesOtherSizesAndWritesNothing) {
    using Family = typename TypeParam::Family;
    const Transform& c = TypeParam::ofLength(16);
    constexpr std::size_t size = sizeof(typename TypeParam::Value);
    for (const int more : {-1, 2}) {
        const std::vector<typename TypeParam::Value> src(c.sourceBytes() / size + more);
        const std::vector<typename TypeParam::Value> untouched(c.destinationBytes() / size, 7);
        auto dst = untouched;
        EXPECT_EQ((transform<Family, 16>(src, dst).status()), kfmErrSize);
        EXPECT_EQ(transform<Family>(src, dst).status(), kfmErrSize);
        EXPECT_EQ(dst, untouched);
    }
    std::vector<typename TypeParam::Value> nothing, tooLong(3 * 8192);
    EXPECT_EQ(transform<Family>(nothing, nothing).status(), kfmErrSize);
    EXPECT_EQ(transform<Family>(tooLong, tooLong).status(), kfmErrSize);
}

// What the compiler refuses: whether an expression with these arguments compiles.
template <class Family, std::size_t n, class Src, class Dst>
concept Accepted = requires(Src src, Dst dst) {
    transform<Family, n>(src, dst);
};
template <std::size_t n>
using Complex = std::array<std::complex<float>, n>;
template <std::size_t n>
using Real = std::array<float, n>;

static_assert(Accepted<Dft, 16, Complex<16>, Complex<16>>);
static_assert(!Accepted<Dft, 16, Complex<16>, Complex<15>>);
static_assert(!Accepted<Dft, 16, Complex<32>, Complex<16>>);
static_assert(!Accepted<Dft, 65, Complex<65>, Complex<65>>);
static_assert(!Accepted<Dft, 1, Complex<1>, Complex<1>>);
static_assert(!Accepted<Dft, 16, Real<32>, Complex<16>>);
static_assert(!Accepted<Dft, 16, std::vector<std::complex<double>>, Complex<16>>);
static_assert(!Accepted<Dft, 16, Complex<16>, const Complex<16>>);
static_assert(Accepted<RealDft<Layout::ccs>, 9, Real<9>, Complex<5>>);
static_assert(Accepted<RealDft<Layout::ccs>, 9, Real<9>, Real<10>>);
static_assert(!Accepted<RealDft<Layout::pack>, 10, Real<10>, Complex<5>>);
static_assert(Accepted<Wht, 8192, Real<8192>, Real<8192>>);
static_assert(!Accepted<Wht, 12, Real<12>, Real<12>>);

TEST(HalfSpectrum, IsTheSpectrumOfTheComplexTransform) {
    for (int n = 2; n <= 64; ++n) {
        std::vector<double> signal(n), ccs(2 * (n / 2 + 1)), pack(n), perm(n);
        std::vector<std::complex<double>> wide(n), bins(n), half(n / 2 + 1);
        for (int k = 0; k < n; ++k) wide[k] = signal[k] = (37 * k % 64 - 31) / 32.0;
        transform<Dft>(wide, bins).orThrow();
        transform<RealDft<Layout::ccs>>(signal, ccs).orThrow();
        transform<RealDft<Layout::ccs>>(signal, half).orThrow();
        transform<RealDft<Layout::pack>>(signal, pack).orThrow();
        transform<RealDft<Layout::perm>>(signal, perm).orThrow();
        const Spectrum<Layout::ccs, double> fromCcs(ccs, n);
        const Spectrum<Layout::pack, double> fromPack(pack, n);
        const Spectrum<Layout::perm, double> fromPerm(perm, n);
        for (int k = -n - 1; k <= 2 * n; ++k) {
            EXPECT_LT(std::abs(fromCcs[k] - bins[(k + 2 * n) % n]), 1e-12) << n << ' ' << k;
            EXPECT_EQ(fromPack[k], fromCcs[k]) << n << ' ' << k;
            EXPECT_EQ(fromPerm[k], fromCcs[k]) << n << ' ' << k;
        }
        EXPECT_EQ(half.back(), fromCcs[n / 2]);
    }
}

TEST(HalfSpectrum, RefusesValuesOfAnotherLength) {
    const std::vector<float> values(10);
    EXPECT_NO_THROW((Spectrum<Layout::ccs, float>(values, 9)));
    EXPECT_THROW((Spectrum<Layout::ccs, float>(values, 10)), Error);
    EXPECT_THROW((Spectrum<Layout::pack, float>(values, 0)), Error);
}

TEST(WalshHadamard, WorksInABufferThatServes) {
    const std::size_t size = whtBufferSize<float>(1024).orThrow();
    alignas(16) std::array<std::byte, 1 << 16> memory;
    const std::span<std::byte> block(memory);
    std::vector<float> signal(1024), expected(1024), result(1024);
    signal[3] = 1;
    transform<Wht>(signal, expected, Scale::none).orThrow();
    transform<Wht>(signal, result, Scale::none, block.first(size)).orThrow();
    EXPECT_EQ(result, expected);
    transform<Wht, 1024>(signal, result, Scale::bySqrtN, block.first(size)).orThrow();
    EXPECT_EQ(result[0], 1.f / 32);
    EXPECT_EQ(transform<Wht>(signal, result, Scale::none, block.first(size - 1)).status(),
              kfmErrSize);
    EXPECT_EQ(transform<Wht>(signal, result, Scale::none, block.subspan(8)).status(), kfmErrSize);
    EXPECT_EQ(whtBufferSize<double>(12).status(), kfmErrSize);
}

TEST(Status, IsThrownOrLookedAt) {
    std::vector<float> three(3), four(4);
    const Result result = transform<Hartley>(three, four);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.status(), kfmErrSize);
    EXPECT_STREQ(result.text(), "a length or order outside the range of the family");
    try {
        result.orThrow();
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.status(), kfmErrSize);
        EXPECT_STREQ(error.what(), result.text());
    }
    EXPECT_NO_THROW(Result(kfmOk).orThrow());
    EXPECT_STREQ(statusText(12345), "unknown status");
}

}   // namespace
}   // namespace kfm::tests
