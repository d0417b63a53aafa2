// Constants that stay in memory.
#pragma once

#include "simd/operation.h"

namespace kfm {

// Hides where a table comes from, so that its constants are loaded and not rebuilt.
template <class T>
KFM_OPERATION void launder(const T*& table) {
    asm("" : "+r"(table));
}

}   // namespace kfm
