// Memory between two inaccessible pages: whoever steps over the near edge faults at once, and
// canaries fill the rest of the accessible pages.
#pragma once

#include <cstddef>

namespace kfm::tests {

enum class Flush { start, end };   // the edge of the block that touches a guard page

class GuardedBuffer {
public:
    // A block of `bytes`, `offset` bytes away from the edge named by `flush`. A block flush with
    // its start is as aligned as `offset` is.
    explicit GuardedBuffer(std::size_t bytes, Flush flush = Flush::start, std::size_t offset = 0);
    ~GuardedBuffer();
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;

    std::byte* data() const { return data_; }
    std::size_t size() const { return size_; }
    bool holds(const void* address) const;   // the block or the rest of its pages
    void makeWritable(bool writable);
    bool untouched() const;        // every byte of the block is still the canary
    bool canariesIntact() const;   // every byte around the block is still the canary

private:
    std::byte* pages_;
    std::size_t pageBytes_;
    std::byte* data_;
    std::size_t size_;
};

}   // namespace kfm::tests
