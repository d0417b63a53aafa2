// What planned transforms compute: the definition, for every length, at any address, in place; and
// the same bits on both targets where that is promised.
#include <cstdio>

#include "dct4/committed_lines.h"
#include "dct4/specification.h"
#include "support/dct4_definition.h"

namespace kfm::tests {
namespace {

template <class Real>
class Dct4Transform : public testing::Test {};
TYPED_TEST_SUITE(Dct4Transform, Precisions);

// Every length up to 2^20, the odd ones up to 4097.
TYPED_TEST(Dct4Transform, IsTheDefinition) {
    for (const int length : acceptedLengths(1 << 20)) {
        if (length > 4097 && length % 2 != 0) continue;
        SCOPED_TRACE(length);
        const Specification<TypeParam> specification(length);
        expectDefinition<TypeParam>(length,
                                    length <= 32     ? 200
                                    : length <= 4096 ? 8
                                                     : 2,
                                    [&](const TypeParam* src, TypeParam* dst) {
                                        Dct4<TypeParam>::transform(src, dst,
                                                                   specification.handle());
                                    });
    }
}

TYPED_TEST(Dct4Transform, OfTwoIsARotation) {
    const Specification<TypeParam> specification(2);
    const auto c = static_cast<TypeParam>(0x1.d906bcf328d46p-1);   // cos(pi/8)
    const auto s = static_cast<TypeParam>(0x1.87de2a6aea963p-2);
    using Pair = std::vector<TypeParam>;
    EXPECT_EQ(transformed(Pair{1, 0}, specification.handle()), (Pair{c, s}));
    EXPECT_EQ(transformed(Pair{0, 1}, specification.handle()), (Pair{s, -c}));
}

// FNV-1a, 64 bits.
template <class Real>
std::uint64_t hash(const std::vector<Real>& values) {
    std::uint64_t state = 0xcbf29ce484222325u;
    const auto* bytes = reinterpret_cast<const unsigned char*>(values.data());
    for (std::size_t i = 0; i < values.size() * sizeof(Real); ++i)
        state = (state ^ bytes[i]) * 0x100000001b3u;
    return state;
}

template <class Real>
void addHashes(int longest, std::vector<std::string>& lines) {
    for (const int length : acceptedLengths(longest)) {
        std::mt19937 random(static_cast<unsigned>(length));
        std::vector<Real> signal(static_cast<std::size_t>(length));
        for (Real& value : signal) value = static_cast<Real>(static_cast<std::int32_t>(random()));
        const Specification<Real> specification(length);
        char line[64];
        std::snprintf(line, sizeof line, "DCT4_%d_%s %016llx", length, Dct4<Real>::suffix,
                      static_cast<unsigned long long>(
                          hash(transformed(signal, specification.handle()))));
        lines.push_back(line);
    }
}

// Beyond 32 the double-precision tables are the system's cosines, which differ between targets.
TEST(Dct4Hashes, MatchTheCommittedValues) {
    std::vector<std::string> lines;
    addHashes<Kfm32f>(1 << 15, lines);
    addHashes<Kfm64f>(32, lines);
    expectCommitted("dct4_hashes.txt",
                    "# FNV-1a of the outputs of the DCT-IV for one signal per length, the same on\n"
                    "# every target.\n",
                    lines);
}

}   // namespace
}   // namespace kfm::tests
