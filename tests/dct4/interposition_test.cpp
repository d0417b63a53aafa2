// A program that defines functions the DCT-IV calls itself: planning into allocated memory must ask
// this program for the size, the memory and the plan, and give the memory back when it cannot; and
// nothing else may allocate.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "kfmcore.h"
#include "kfmgen.h"

namespace {

constexpr KfmStatus refused = 4711;

// What the next calls are to do, and what they were asked.
struct Record {
    bool refuseSize = false, refusePlan = false, outOfMemory = false;
    int sizes = 0, plans = 0, allocations = 0, releases = 0;
    int lastSize = 0;
    void* allocated = nullptr;
    void* released = nullptr;

    bool calls(int sizeCalls, int planCalls, int mallocCalls, int freeCalls) const {
        return sizes == sizeCalls && plans == planCalls && allocations == mallocCalls &&
               releases == freeCalls;
    }
};
Record record;

template <class Function>
Function* ofLibrary(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}   // namespace

#define KFM_REPLACE(precision, Spec)                                                            \
    extern "C" KfmStatus kfmgDCT4GetSize_##precision(int len, int* size) {                      \
        ++record.sizes;                                                                         \
        if (record.refuseSize) return refused;                                                  \
        return ofLibrary<KfmStatus(int, int*)>("kfmgDCT4GetSize_" #precision)(len, size);       \
    }                                                                                           \
    extern "C" KfmStatus kfmgDCT4Init_##precision(Spec** spec, int len, Kfm8u* block) {         \
        ++record.plans;                                                                         \
        if (record.refusePlan) return refused;                                                  \
        return ofLibrary<KfmStatus(Spec**, int, Kfm8u*)>("kfmgDCT4Init_" #precision)(spec, len, \
                                                                                     block);    \
    }
KFM_REPLACE(32f, KfmDCT4Spec_32f)
KFM_REPLACE(64f, KfmDCT4Spec_64f)

extern "C" void* kfmMalloc(int size) {
    ++record.allocations;
    record.lastSize = size;
    const std::size_t whole = (static_cast<std::size_t>(size) + 31) / 32 * 32;
    return record.allocated = record.outOfMemory ? nullptr : std::aligned_alloc(32, whole);
}

extern "C" void kfmFree(void* block) {
    ++record.releases;
    record.released = block;
    std::free(block);
}

namespace {

int failures = 0;

void expect(bool holds, const char* what, int length) {
    if (holds) return;
    std::printf("failed at length %d: %s\n", length, what);
    ++failures;
}

template <class Real, class Spec>
struct Calls {
    KfmStatus (*getSize)(int, int*);
    KfmStatus (*initAlloc)(Spec**, int);
    KfmStatus (*free)(Spec*);
    KfmStatus (*transform)(const Real*, Real*, const Spec*);
};

template <class Real, class Spec>
void checkLife(const Calls<Real, Spec>& calls, int length) {
    int size = 0;
    calls.getSize(length, &size);
    record = {};
    Spec* spec = nullptr;
    expect(calls.initAlloc(&spec, length) == kfmOk && record.calls(1, 1, 1, 0) &&
               record.lastSize == size,
           "size, memory and plan are asked here, once", length);
    std::vector<Real> signal(static_cast<std::size_t>(length), 1);
    expect(calls.transform(signal.data(), signal.data(), spec) == kfmOk && record.calls(1, 1, 1, 0),
           "a transform asks for nothing", length);
    expect(calls.free(spec) == kfmOk && record.calls(1, 1, 1, 1) &&
               record.released == record.allocated,
           "the block is given back", length);
}

template <class Real, class Spec>
void checkFailures(const Calls<Real, Spec>& calls, int length) {
    Spec* spec = nullptr;
    const auto fails = [&](const Record& start, Spec** where, int len, KfmStatus expected) {
        record = start;
        return calls.initAlloc(where, len) == expected && spec == nullptr;
    };
    expect(fails({}, nullptr, length, kfmErrNullPtr) && record.calls(0, 0, 0, 0),
           "without a place for the handle nothing is asked", length);
    expect(fails({}, &spec, 48, kfmErrSize) && record.calls(1, 0, 0, 0),
           "a refused length takes no memory", length);
    expect(fails({.refuseSize = true}, &spec, length, refused) && record.calls(1, 0, 0, 0),
           "without a size there is no memory", length);
    expect(fails({.refusePlan = true}, &spec, length, refused) && record.calls(1, 1, 1, 1) &&
               record.released == record.allocated,
           "without a plan the memory goes back", length);
    expect(fails({.outOfMemory = true, .released = &record}, &spec, length, kfmErrNullPtr) &&
               record.calls(1, 1, 1, 1) && record.released == nullptr,
           "without memory there is no plan", length);
}

template <class Real, class Spec>
void check(const Calls<Real, Spec>& calls) {
    for (const int length : {2, 4, 8, 16, 32, 33, 64, 2049, 4096, 4097, 32768}) {
        checkLife(calls, length);
        checkFailures(calls, length);
    }
}

}   // namespace

int main() {
    check<Kfm32f, KfmDCT4Spec_32f>(
        {kfmgDCT4GetSize_32f, kfmgDCT4InitAlloc_32f, kfmgDCT4Free_32f, kfmgDCT4_32f});
    check<Kfm64f, KfmDCT4Spec_64f>(
        {kfmgDCT4GetSize_64f, kfmgDCT4InitAlloc_64f, kfmgDCT4Free_64f, kfmgDCT4_64f});
    return failures == 0 ? 0 : 1;
}
