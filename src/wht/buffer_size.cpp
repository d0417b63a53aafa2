// The size queries of the work buffer.
#include "kfmgen.h"
#include "wht/blocking.h"

namespace {

KfmStatus bufferSize(bool doublePrecision, int order, int* size) {
    if (!kfm::wht::isOrder(order)) return kfmErrSize;
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
