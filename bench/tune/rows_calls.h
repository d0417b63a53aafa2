// How a kernel of rows is called to be timed: on contiguous rows, and on the columns of an array. The
// tuner puts this behind each candidate's source.
#pragma once

// What the library compiles once for all lengths.
#include "rows/any_spacing.cpp"

// `single` transforms rows that are left over, of which there are none: it need not exist.
#define KFM_CALL_ROWS(function, single, Element, count, in, out)                   \
    KFM_CALL_JOB(contiguous_##function, function, Element, count, 1, in, 1, out)   \
    KFM_CALL_JOB(columns_##function, function, Element, count, count, 1, count, 1) \
    _Pragma(#single)

#define KFM_CALL_JOB(name, function, Element, count, srcStride, srcDistance, dstStride,  \
                     dstDistance)                                                        \
    extern "C" [[gnu::visibility("default")]] KfmStatus name(const void* src, void* dst, \
                                                             int flag) {                 \
        kfm::rows::function({{static_cast<const Element*>(src), srcStride, srcDistance}, \
                             {static_cast<Element*>(dst), dstStride, dstDistance},       \
                             count,                                                      \
                             flag});                                                     \
        return kfmOk;                                                                    \
    }
