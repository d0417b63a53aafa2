// A program that defines functions the DCT-IV calls itself: planning into allocated memory must ask
// this program for the size, the memory and the plan, and give the memory back when it cannot.
#include <cstdio>

#include "kfmcore.h"
#include "kfmgen.h"

namespace {

constexpr KfmStatus refused = 4711;
alignas(32) Kfm8u block[224];
bool outOfMemory = false;
int allocations = 0, releases = 0, lastSize = 0;
void* lastReleased = block;
int failures = 0;

void expect(bool holds, const char* what) {
    if (holds) return;
    std::printf("failed: %s\n", what);
    ++failures;
}

}   // namespace

extern "C" KfmStatus kfmgDCT4GetSize_32f(int len, int* size) {
    *size = 100 + len;
    return len == 64 ? refused : kfmOk;
}

extern "C" KfmStatus kfmgDCT4Init_64f(KfmDCT4Spec_64f**, int, Kfm8u*) { return refused; }

extern "C" void* kfmMalloc(int size) {
    ++allocations;
    lastSize = size;
    return outOfMemory ? nullptr : block;
}

extern "C" void kfmFree(void* released) {
    ++releases;
    lastReleased = released;
}

int main() {
    KfmDCT4Spec_32f* spec = nullptr;
    expect(kfmgDCT4InitAlloc_32f(&spec, 64) == refused && allocations == 0, "size is asked here");
    expect(kfmgDCT4InitAlloc_32f(&spec, 8) == kfmOk && lastSize == 108, "memory is asked here");
    expect(kfmgDCT4Free_32f(spec) == kfmOk && lastReleased == block, "the block is given back");

    KfmDCT4Spec_64f* spec64 = nullptr;
    expect(kfmgDCT4InitAlloc_64f(&spec64, 8) == refused && releases == 2, "the plan is made here");
    outOfMemory = true;
    spec = nullptr;
    expect(kfmgDCT4InitAlloc_32f(&spec, 8) == kfmErrNullPtr && spec == nullptr &&
               releases == 3 && lastReleased == nullptr,
           "without memory there is no plan");
    return failures == 0 ? 0 : 1;
}
