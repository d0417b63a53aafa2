// The allocator of a test program, in place of the companion library's: it keeps a record, gives
// blocks no more aligned than promised, and fills them with what is no number before and after use.
#pragma once

#include <functional>

namespace kfm::tests {

struct AllocatorRecord {
    int allocations = 0, releases = 0;   // calls
    int lastSize = 0;
    int misuses = 0;   // blocks released that were not given out, or changed after their release

    bool operator==(const AllocatorRecord&) const = default;
};

// What has happened since the last reset.
AllocatorRecord allocatorRecord();

// `atRelease` runs whenever a block is given back.
void resetAllocatorRecord(std::function<void()> atRelease = [] {});

}   // namespace kfm::tests
