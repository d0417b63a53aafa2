// The allocation pair. Blocks start on a cache line, which is more than any vector access of the
// transforms asks for; thread safety is that of the C library's allocator.
#include "kfmcore.h"

#include <cstdlib>

extern "C" void* kfmMalloc(int size) {
    constexpr std::size_t cacheLine = 64;
    if (size < 0) return nullptr;
    void* block = nullptr;
    const std::size_t bytes = size > 0 ? static_cast<std::size_t>(size) : 1;
    return posix_memalign(&block, cacheLine, bytes) == 0 ? block : nullptr;
}

extern "C" void kfmFree(void* block) { std::free(block); }
