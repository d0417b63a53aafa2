// A plan of the library's DCT-IV for one length, freed with its owner.
#pragma once

#include <memory>
#include <new>

#include "kfmgen.h"

namespace kfm::tool {

template <class Real>
struct Dct4Calls;
template <>
struct Dct4Calls<Kfm32f> {
    using Spec = KfmDCT4Spec_32f;
    static constexpr auto getSize = kfmgDCT4GetSize_32f;
    static constexpr auto initAlloc = kfmgDCT4InitAlloc_32f;
    static constexpr auto free = kfmgDCT4Free_32f;
    static constexpr auto transform = kfmgDCT4_32f;
};
template <>
struct Dct4Calls<Kfm64f> {
    using Spec = KfmDCT4Spec_64f;
    static constexpr auto getSize = kfmgDCT4GetSize_64f;
    static constexpr auto initAlloc = kfmgDCT4InitAlloc_64f;
    static constexpr auto free = kfmgDCT4Free_64f;
    static constexpr auto transform = kfmgDCT4_64f;
};

template <class Real>
class Dct4Plan {
public:
    // None for a length that the library does not plan. Throws bad_alloc where there is no memory.
    explicit Dct4Plan(int length) {
        typename Calls::Spec* spec = nullptr;
        const KfmStatus status = Calls::initAlloc(&spec, length);
        if (status != kfmOk && status != kfmErrSize) throw std::bad_alloc();
        spec_.reset(spec);
    }

    explicit operator bool() const { return spec_ != nullptr; }

    KfmStatus transform(const Real* source, Real* destination) const {
        return Calls::transform(source, destination, spec_.get());
    }

private:
    using Calls = Dct4Calls<Real>;
    struct Free {
        void operator()(typename Calls::Spec* spec) const { Calls::free(spec); }
    };
    std::unique_ptr<typename Calls::Spec, Free> spec_;
};

}   // namespace kfm::tool
