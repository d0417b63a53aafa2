// The operations that objects of a plan carry, under plain names by precision and kind
// (owngDCT4_32fw7_env4_plan), so that a debugger can say what an object is. Each calls the member
// function that does the work. A kind names its operations once, behind its class template, and
// defines them once, in its source file.
#pragma once

#include "kfmgen.h"

namespace kfm::dct4 {

using ReleaseOperation = void(void*);
using PlanOperation = KfmStatus(void*);

// The plain functions of an object type: `release`, and `plan` or `at`.
template <class Kind>
struct Operations;

}   // namespace kfm::dct4

#define KFM_DCT4_DECLARE(prefix, Kind, operation, Result, ...)   \
    extern "C" void prefix##___del__(void*);                     \
    extern "C" Result prefix##_##operation(__VA_ARGS__);         \
    template <>                                                  \
    struct kfm::dct4::Operations<kfm::dct4::Kind> {              \
        static constexpr auto release = &prefix##___del__;       \
        static constexpr auto operation = &prefix##_##operation; \
    };

#define KFM_DCT4_DEFINE_DEL(prefix, Kind)             \
    extern "C" void prefix##___del__(void* object) {  \
        static_cast<kfm::dct4::Kind*>(object)->del(); \
    }                                                 \
    template struct kfm::dct4::Kind;

#define KFM_DCT4_DEFINE_PLAN(prefix, Kind)                     \
    extern "C" KfmStatus prefix##_plan(void* object) {         \
        return static_cast<kfm::dct4::Kind*>(object)->build(); \
    }

// All four outside namespaces.
#define KFM_DCT4_DECLARE_ENVIRONMENT(name, Kind)                                  \
    KFM_DCT4_DECLARE(owngDCT4_32fw7_##name, Kind<Kfm32f>, plan, KfmStatus, void*) \
    KFM_DCT4_DECLARE(owngDCT4_64fw7_##name, Kind<Kfm64f>, plan, KfmStatus, void*)

#define KFM_DCT4_DEFINE_ENVIRONMENT(name, Kind)               \
    KFM_DCT4_DEFINE_DEL(owngDCT4_32fw7_##name, Kind<Kfm32f>)  \
    KFM_DCT4_DEFINE_DEL(owngDCT4_64fw7_##name, Kind<Kfm64f>)  \
    KFM_DCT4_DEFINE_PLAN(owngDCT4_32fw7_##name, Kind<Kfm32f>) \
    KFM_DCT4_DEFINE_PLAN(owngDCT4_64fw7_##name, Kind<Kfm64f>)

// The parameters of an index map: `const void*` for the map, then the indices.
#define KFM_DCT4_DECLARE_INDEX_MAP(name, Kind, ...)                                \
    KFM_DCT4_DECLARE(owngDCT4_32fw7_##name, Kind<Kfm32f>, at, Kfm32f, __VA_ARGS__) \
    KFM_DCT4_DECLARE(owngDCT4_64fw7_##name, Kind<Kfm64f>, at, Kfm64f, __VA_ARGS__)
