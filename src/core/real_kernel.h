// What a generated kernel on real data stands on: lane operations, packed layouts, entry checks.
#pragma once

#include "core/packed_layouts.h"
#include "core/run_kernel.h"
#include "simd/f32x2.h"
#include "simd/f64x2.h"
#ifdef __AVX2__
#include "simd/avx2/f32x2_pairs.h"
#endif
#include "simd/scalar.h"
