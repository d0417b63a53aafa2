// Page mapping and canary checks of GuardedBuffer.
#include "support/buffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace kfm::tests {
namespace {

// As a float or a double this is a large value, never a plausible result.
constexpr std::byte canary{0x6f};

std::size_t pageSize() {
    static const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

bool allCanary(const std::byte* first, const std::byte* last) {
    return std::all_of(first, last, [](std::byte value) { return value == canary; });
}

}   // namespace

GuardedBuffer::GuardedBuffer(std::size_t bytes, Flush flush, std::size_t offset) : size_(bytes) {
    const std::size_t page = pageSize();
    pageBytes_ = (bytes + offset + page - 1) / page * page;
    void* mapped = mmap(nullptr, pageBytes_ + 2 * page, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) throw std::bad_alloc();
    pages_ = static_cast<std::byte*>(mapped) + page;
    for (std::byte* guard : {pages_ - page, pages_ + pageBytes_})
        if (mprotect(guard, page, PROT_NONE) != 0) throw std::bad_alloc();
    std::memset(pages_, static_cast<int>(canary), pageBytes_);
    data_ = flush == Flush::start ? pages_ + offset : pages_ + pageBytes_ - bytes - offset;
}

GuardedBuffer::~GuardedBuffer() { munmap(pages_ - pageSize(), pageBytes_ + 2 * pageSize()); }

bool GuardedBuffer::holds(const void* address) const {
    return pages_ <= address && address < pages_ + pageBytes_;
}

void GuardedBuffer::makeWritable(bool writable) {
    if (mprotect(pages_, pageBytes_, writable ? PROT_READ | PROT_WRITE : PROT_READ) != 0)
        throw std::bad_alloc();
}

bool GuardedBuffer::untouched() const { return allCanary(data_, data_ + size_); }

bool GuardedBuffer::canariesIntact() const {
    return allCanary(pages_, data_) && allCanary(data_ + size_, pages_ + pageBytes_);
}

}   // namespace kfm::tests
