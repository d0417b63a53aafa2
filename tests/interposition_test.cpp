// A program that defines a fixed-length function itself: the generic entry must call that one, and
// still the library's own for every other length.
#include <cstdio>

#include "kfmgen.h"

namespace {
constexpr KfmStatus replaced = 4711;
}

extern "C" KfmStatus kfmgDFTFwd_CToC_16_32fc(const Kfm32fc*, Kfm32fc*, int) { return replaced; }

int main() {
    Kfm32fc signal[17] = {};
    const KfmStatus status = kfmgDFTFwd_CToC_32fc(signal, signal, 16, kfmScaleNone);
    const KfmStatus other = kfmgDFTFwd_CToC_32fc(signal, signal, 17, kfmScaleNone);
    std::printf("replaced length: status %d, other length: status %d\n", int(status), int(other));
    return status == replaced && other == kfmOk ? 0 : 1;
}
