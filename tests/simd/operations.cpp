// Each vector operation as a function of its own, to be looked at.
#include "simd/f32x2.h"

using namespace kfm::simd;

#define KFM_OPERATION_COUNT(name, instructions, result, parameters, ...) \
    extern "C" result operation_##name parameters { return __VA_ARGS__; }
#include "operations.def"
