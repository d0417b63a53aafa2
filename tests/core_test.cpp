// The allocation pair of the companion library.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <thread>
#include <vector>

#include "kfmcore.h"

namespace {

bool aligned(const void* block) { return reinterpret_cast<std::uintptr_t>(block) % 64 == 0; }

TEST(Malloc, GivesAlignedSeparateBlocks) {
    std::vector<unsigned char*> blocks;
    for (int size = 0; size < 300; ++size) {
        auto* block = static_cast<unsigned char*>(kfmMalloc(size));
        ASSERT_TRUE(block != nullptr || size == 0);
        ASSERT_TRUE(aligned(block)) << size;
        if (block) std::memset(block, size % 251, static_cast<std::size_t>(size));
        blocks.push_back(block);
    }
    for (int size = 0; size < 300; ++size) {
        for (int i = 0; i < size; ++i) ASSERT_EQ(blocks[size][i], size % 251);
        kfmFree(blocks[size]);
    }
}

TEST(Malloc, RefusesNegativeSizes) {
    for (int size : {-1, -64, INT_MIN, INT_MIN + 1}) EXPECT_EQ(kfmMalloc(size), nullptr) << size;
}

TEST(Malloc, GivesNullWhenMemoryIsExhausted) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer needs the address space that is taken away here";
#endif
    rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    rlimit small = before;
    small.rlim_cur = 512u << 20;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &small), 0);
    void* const beyond =
        mmap(nullptr, 1 << 30, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (beyond != MAP_FAILED) {
        munmap(beyond, 1 << 30);
        setrlimit(RLIMIT_AS, &before);
        GTEST_SKIP() << "there is no limit here: an emulator";
    }
    void* large = kfmMalloc(1 << 30);
    void* largest = kfmMalloc(INT_MAX);
    setrlimit(RLIMIT_AS, &before);
    EXPECT_EQ(large, nullptr);
    EXPECT_EQ(largest, nullptr);
}

TEST(Free, IgnoresNull) { kfmFree(nullptr); }

TEST(Malloc, ServesThreads) {
    const auto work = [](int id) {
        for (int i = 0; i < 20000; ++i) {
            const int size = 1 + (i * 37 + id) % 2000;
            auto* block = static_cast<unsigned char*>(kfmMalloc(size));
            ASSERT_TRUE(block && aligned(block));
            std::memset(block, id, static_cast<std::size_t>(size));
            ASSERT_EQ(block[0], id);
            ASSERT_EQ(block[size - 1], id);
            kfmFree(block);
        }
    };
    std::vector<std::thread> threads;
    for (int id = 0; id < 4; ++id) threads.emplace_back(work, id);
    for (std::thread& thread : threads) thread.join();
}

}   // namespace
