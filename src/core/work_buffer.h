// A block that the caller brings, or one of its own for the time of a call.
#pragma once

#include <cstdint>

#include "kfmcore.h"
#include "kfmgen.h"

namespace kfm {

class WorkBuffer {
public:
    // Allocates where the caller brings none and something is needed.
    WorkBuffer(Kfm8u* callers, std::int64_t bytes)
        : owned_(callers || bytes == 0 ? nullptr : kfmMalloc(static_cast<int>(bytes))),
          block_(callers ? callers : owned_) {}
    ~WorkBuffer() {
        if (owned_) kfmFree(owned_);
    }
    WorkBuffer(const WorkBuffer&) = delete;
    WorkBuffer& operator=(const WorkBuffer&) = delete;

    template <class Type>
    Type* as() const {
        return static_cast<Type*>(block_);
    }

private:
    void* owned_;
    void* block_;
};

}   // namespace kfm
