// One lane: the operations of the vector types on plain numbers.
#pragma once

namespace kfm::simd {

inline float add(float a, float b) { return a + b; }
inline float sub(float a, float b) { return a - b; }
inline float mul(float a, float b) { return a * b; }
inline double add(double a, double b) { return a + b; }
inline double sub(double a, double b) { return a - b; }
inline double mul(double a, double b) { return a * b; }

inline double widen(float a) { return a; }
inline float narrow(double a) { return static_cast<float>(a); }
inline float subtractFromZero(float a) { return 0.0f - a; }
inline double subtractFromZero(double a) { return 0.0 - a; }

template <class Real>
struct OneLane {
    Real value;
};
inline float broadcast(const OneLane<float>* factor) { return factor->value; }
inline double broadcast(const OneLane<double>* factor) { return factor->value; }
inline float lane(const float* table, int index) { return table[index]; }
inline double lane(const double* table, int index) { return table[index]; }

inline void pin(float& a) { asm("" : "+x"(a)); }
inline void pin(double& a) { asm("" : "+x"(a)); }

inline void storeLow(float* p, float v) { *p = v; }
inline void storeLow(double* p, double v) { *p = v; }

}   // namespace kfm::simd
