// The size queries of the work buffer.
#include "kfmgen.h"
#include "wht/blocking.h"

namespace {

KfmStatus bufferSize(bool doublePrecision, int order, int* size) {
    constexpr int last = std::end(kfm::wht::singleBlockings)[-1].order();
    if (static_cast<unsigned>(order) - 1 > last - 1) return kfmErrSize;
    *size = static_cast<int>(kfm::wht::bufferBytes(doublePrecision, order));
    return kfmOk;
}

}   // namespace

extern "C" KfmStatus kfmgWHTGetBufferSize_32f(int order, int* size) {
    return bufferSize(false, order, size);
}

extern "C" KfmStatus kfmgWHTGetBufferSize_64f(int order, int* size) {
    return bufferSize(true, order, size);
}
