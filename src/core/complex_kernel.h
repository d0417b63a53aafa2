// What a generated complex kernel stands on: lane operations, memory operations, entry checks.
#pragma once

#include "core/run_kernel.h"
#include "simd/f32x4.h"
#include "simd/f64x2.h"
#ifdef __AVX2__
#include "simd/avx2/f32x8.h"
#include "simd/avx2/f64x4.h"
#endif
