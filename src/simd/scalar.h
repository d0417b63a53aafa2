// One lane: the operations of the vector types on plain numbers.
#pragma once

#include "simd/operation.h"

namespace kfm::simd {

KFM_OPERATION float add(float a, float b) { return a + b; }
KFM_OPERATION float sub(float a, float b) { return a - b; }
KFM_OPERATION float mul(float a, float b) { return a * b; }
KFM_OPERATION double add(double a, double b) { return a + b; }
KFM_OPERATION double sub(double a, double b) { return a - b; }
KFM_OPERATION double mul(double a, double b) { return a * b; }

KFM_OPERATION double widen(float a) { return a; }
KFM_OPERATION float narrow(double a) { return static_cast<float>(a); }
KFM_OPERATION float subtractFromZero(float a) { return 0.0f - a; }
KFM_OPERATION double subtractFromZero(double a) { return 0.0 - a; }

template <class Real>
struct OneLane {
    Real value;
};
KFM_OPERATION float broadcast(const OneLane<float>* factor) { return factor->value; }
KFM_OPERATION double broadcast(const OneLane<double>* factor) { return factor->value; }
KFM_OPERATION float lane(const float* table, int index) { return table[index]; }
KFM_OPERATION double lane(const double* table, int index) { return table[index]; }

// Of this element only: the compiler must not fetch its neighbours along with it.
template <class Real>
KFM_OPERATION Real load(const Real* p) {
    return *static_cast<const volatile Real*>(p);
}
KFM_OPERATION void storeLow(float* p, float v) { *p = v; }
KFM_OPERATION void storeLow(double* p, double v) { *p = v; }

}   // namespace kfm::simd
