// Blocks at every address, as large as their length asks and not a byte more, and what of a block
// calls write.
#include <sys/mman.h>

#include <cstring>
#include <numeric>

#include "dct4/specification.h"
#include "support/fault.h"

namespace kfm::tests {
namespace {

constexpr std::size_t page = 4096;
constexpr int canary = 0x5a;

// Pages at an address whose bit 31 is set or not, before an inaccessible one.
class Pages {
public:
    Pages(std::size_t bytes, bool highBit) : bytes_((bytes + page - 1) / page * page) {
        const std::uintptr_t low = highBit ? 0x90000000u : 0x60000000u;
        const std::uintptr_t high = sizeof(void*) == 8 ? std::uintptr_t{0x2000} : 0;
        auto* address = reinterpret_cast<void*>((high << 16 << 16) + low);
        void* mapped = mmap(address, bytes_ + page, PROT_NONE,
                            MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
        if (mapped == MAP_FAILED) throw std::bad_alloc();
        start_ = static_cast<Kfm8u*>(mapped);
        protect(PROT_READ | PROT_WRITE);
        std::memset(start_, canary, bytes_);
    }
    ~Pages() { munmap(start_, bytes_ + page); }
    Pages(const Pages&) = delete;

    void protect(int access) { mprotect(start_, bytes_, access); }
    Kfm8u* begin() const { return start_; }
    Kfm8u* end() const { return start_ + bytes_; }
    bool untouched(const Kfm8u* first, const Kfm8u* last) const {
        return std::all_of(first, last, [](Kfm8u byte) { return byte == canary; });
    }

private:
    std::size_t bytes_;
    Kfm8u* start_;
};

template <class Real>
std::vector<Real> ramp(int length) {
    std::vector<Real> signal(static_cast<std::size_t>(length));
    std::iota(signal.begin(), signal.end(), Real(1));
    return signal;
}

template <class Real>
class Block : public testing::Test {};
TYPED_TEST_SUITE(Block, Precisions);

// Where the handle is, or would be, in a block.
Kfm8u* handleIn(Kfm8u* block) {
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t up = address & 0x80000000u ? 31 : 0;
    return block + (((address + up) & ~std::uintptr_t{31}) - address) + 64;
}

// The bytes of the root and its three lists that count, the last of them without its padding.
constexpr std::ptrdiff_t rootBytes = 64 + 2 * 32 + 12;

// The last offset leaves no byte between the block and the inaccessible page.
TYPED_TEST(Block, AtEveryOffsetIsLargeEnough) {
    for (int length : {2, 32, 33, 64, 128, 4096, 4097})
        for (bool highBit : {false, true}) {
            const std::size_t size = static_cast<std::size_t>(sizeOf<TypeParam>(length));
            const auto source = ramp<TypeParam>(length);
            const auto expected = transformed(source, Specification<TypeParam>(length).handle());
            for (std::size_t offset = 0; offset < 64; ++offset) {
                Pages pages(size + 64, highBit);
                Kfm8u* block = pages.end() - size - 63 + offset;
                typename Dct4<TypeParam>::Spec* spec = nullptr;
                std::vector<TypeParam> result(source.size());
                ASSERT_TRUE(survives([&] {
                    ASSERT_EQ(Dct4<TypeParam>::init(&spec, length, block), kfmOk);
                    Dct4<TypeParam>::transform(source.data(), result.data(), spec);
                })) << length
                    << " at offset " << offset;
                ASSERT_EQ(result, expected) << length << " at offset " << offset;

                ASSERT_EQ(reinterpret_cast<Kfm8u*>(spec), handleIn(block));
                // Only a plan that is all root is too tight to be rounded up in.
                Kfm8u* const end = length <= 32 ? handleIn(block) + rootBytes : block + size;
                ASSERT_TRUE(end <= block + size || (highBit && end <= block + size + 11));
                ASSERT_TRUE(pages.untouched(pages.begin(), block)) << length;
                ASSERT_TRUE(pages.untouched(end, pages.end())) << length << " at offset " << offset;
            }
        }
}

// Only the arena's top and the root with its lists: 204 bytes, 235 where the address is rounded up.
TYPED_TEST(Block, StaysUnwrittenForARefusedLength) {
    for (int length : {-4, 0, 3, 48, 192, 3 << 20, 1 << 30})
        for (bool highBit : {false, true})
            for (std::ptrdiff_t offset = 0; offset < 32; ++offset) {
                Pages pages(page, highBit);
                Kfm8u* block = pages.begin() + offset;
                typename Dct4<TypeParam>::Spec* spec = nullptr;
                ASSERT_TRUE(survives([&] {
                    EXPECT_EQ(Dct4<TypeParam>::init(&spec, length, block), kfmErrSize);
                })) << length;
                EXPECT_EQ(spec, nullptr);
                EXPECT_LE(handleIn(block) + rootBytes, block + (highBit ? 235 : 204));
                EXPECT_TRUE(pages.untouched(handleIn(block) + rootBytes, pages.end())) << length;
            }
}

// Short lengths may be shared between threads, because a transform writes nothing of the plan.
TYPED_TEST(Block, OfAShortLengthIsOnlyRead) {
    for (int length : {2, 4, 8, 16, 32}) {
        Pages pages(page, true);
        typename Dct4<TypeParam>::Spec* spec = nullptr;
        ASSERT_EQ(Dct4<TypeParam>::init(&spec, length, pages.begin()), kfmOk);
        pages.protect(PROT_READ);
        EXPECT_TRUE(survives([&] { transformed(ramp<TypeParam>(length), spec); })) << length;
    }
}

// A long one writes its work buffer and no more: the next transform finds its tables as they were.
TYPED_TEST(Block, IsAsGoodAsNewAfterATransform) {
    for (int length : {64, 4096, 4097}) {
        const Specification<TypeParam> specification(length);
        const auto source = ramp<TypeParam>(length);
        const auto first = transformed(source, specification.handle());
        transformed(first, specification.handle());
        EXPECT_EQ(transformed(source, specification.handle()), first) << length;
    }
}

#if UINTPTR_MAX > 0xffffffffu
// The old place is overwritten, so that whatever still led there would show.
TYPED_TEST(Block, CanBeMoved) {
    for (int length : {8, 64, 2048, 33, 4097, 1 << 17}) {
        const std::size_t size = static_cast<std::size_t>(sizeOf<TypeParam>(length));
        const auto source = ramp<TypeParam>(length);
        for (std::size_t offset : {0, 13}) {
            Pages from(size + 64, false), to(size + 64, true);
            typename Dct4<TypeParam>::Spec* spec = nullptr;
            ASSERT_EQ(Dct4<TypeParam>::init(&spec, length, from.begin() + offset), kfmOk);
            const auto expected = transformed(source, spec);
            Kfm8u* moved = to.begin() + offset + 32;
            std::memcpy(moved, from.begin() + offset, size);
            std::memset(from.begin(), 0x7f, size + offset);
            const auto handle = reinterpret_cast<Kfm8u*>(spec) - from.begin() - offset + moved;
            spec = reinterpret_cast<decltype(spec)>(handle);
            EXPECT_EQ(transformed(source, spec), expected) << length;
        }
    }
}
#endif

}   // namespace
}   // namespace kfm::tests
