// Released blocks stay in memory for a while, so that use after release and a second release show.
#include "support/allocator.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <mutex>

#include "kfmcore.h"

namespace kfm::tests {
namespace {

constexpr int noNumber = 0xff;
constexpr std::size_t kept = 8;   // released blocks

struct Block {
    std::byte* data;
    std::size_t bytes;

    bool untouched() const {
        return std::all_of(data, data + bytes,
                           [](std::byte value) { return value == std::byte{noNumber}; });
    }
};

std::mutex mutex;
std::map<void*, Block> live;
std::deque<Block> released;
AllocatorRecord record;
std::function<void()> observer = [] {};

// Blocks start at a multiple of 16 that is none of 32.
Block take(std::size_t bytes) {
    auto* memory = static_cast<std::byte*>(std::aligned_alloc(32, (bytes + 47) / 32 * 32));
    std::memset(memory + 16, noNumber, bytes);
    return {memory + 16, bytes};
}

void discardOldest() {
    record.misuses += !released.front().untouched();
    std::free(released.front().data - 16);
    released.pop_front();
}

}   // namespace

AllocatorRecord allocatorRecord() {
    const std::lock_guard lock(mutex);
    while (!released.empty()) discardOldest();
    return record;
}

void resetAllocatorRecord(std::function<void()> atRelease) {
    allocatorRecord();
    record = {};
    observer = std::move(atRelease);
}

}   // namespace kfm::tests

using namespace kfm::tests;

extern "C" void* kfmMalloc(int size) {
    const std::lock_guard lock(mutex);
    ++record.allocations;
    record.lastSize = size;
    const Block block = take(static_cast<std::size_t>(size));
    live[block.data] = block;
    return block.data;
}

extern "C" void kfmFree(void* address) {
    const std::lock_guard lock(mutex);
    ++record.releases;
    observer();
    const auto found = live.find(address);
    if (found == live.end()) {
        record.misuses += address != nullptr;
        return;
    }
    std::memset(found->second.data, noNumber, found->second.bytes);
    released.push_back(found->second);
    live.erase(found);
    if (released.size() > kept) discardOldest();
}
