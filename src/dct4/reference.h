// 32-bit references: how the objects of a plan point at one another and at their operations. A
// plan has the same layout on both targets, so that sizes and offsets agree. On i386 a reference
// is the pointer. On x86-64 it is the distance from its own place, for data in the same block, or
// from the start of the library, for an operation: a block keeps its meaning when it is copied to
// another address or mapped into another process. Only this file knows the difference.
#pragma once

#include <cstdint>
#include <cstring>

#if UINTPTR_MAX > 0xffffffffu
// Set by the linker: the first byte of the library (or program) that holds this code.
extern "C" const char __ehdr_start[] __attribute__((visibility("hidden")));
#endif

namespace kfm::dct4 {

#if UINTPTR_MAX > 0xffffffffu

// The origin of data references is their own place, which need not be aligned.
inline std::uintptr_t originOfData(const void* place) {
    return reinterpret_cast<std::uintptr_t>(place);
}
inline std::uintptr_t originOfOperations() {
    return reinterpret_cast<std::uintptr_t>(__ehdr_start);
}

#else

inline std::uintptr_t originOfData(const void*) { return 0; }
inline std::uintptr_t originOfOperations() { return 0; }

#endif

// Zero is null on both targets: nothing refers to itself.
inline std::uintptr_t loadReference(const void* place, std::uintptr_t origin) {
    std::int32_t distance;
    std::memcpy(&distance, place, sizeof distance);
    return distance == 0 ? 0 : origin + static_cast<std::uintptr_t>(std::intptr_t{distance});
}

inline void storeReference(void* place, std::uintptr_t target, std::uintptr_t origin) {
    const auto distance = target == 0 ? 0 : static_cast<std::int32_t>(target - origin);
    std::memcpy(place, &distance, sizeof distance);
}

// A field that refers to an object of the same block.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(const Ref&) = delete;
    Ref& operator=(const Ref& other) {
        *this = other.get();
        return *this;
    }
    Ref& operator=(T* target) {
        storeReference(&distance_, reinterpret_cast<std::uintptr_t>(target), originOfData(this));
        return *this;
    }
    T* get() const { return reinterpret_cast<T*>(loadReference(&distance_, originOfData(this))); }
    operator T*() const { return get(); }
    T* operator->() const { return get(); }

private:
    std::int32_t distance_ = 0;
};

// A field that refers to a function of this library.
template <class Function>
class OperationRef {
public:
    OperationRef() = default;
    OperationRef(const OperationRef&) = delete;
    OperationRef& operator=(const OperationRef&) = delete;
    OperationRef& operator=(Function* operation) {
        storeReference(&distance_, reinterpret_cast<std::uintptr_t>(operation),
                       originOfOperations());
        return *this;
    }
    Function* get() const {
        return reinterpret_cast<Function*>(loadReference(&distance_, originOfOperations()));
    }

private:
    std::int32_t distance_ = 0;
};

}   // namespace kfm::dct4
