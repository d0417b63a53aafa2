// The short transforms: straight from the caller's array to the caller's array.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int n>
struct FixedTransformNetwork;

// Slots are elements, or where a vector of them starts.
template <class Real, int L>
struct ElementReader {
    const Real* first;

    LanesOf<Real, L> load(int element) const {
        if constexpr (L == 1) return first[element];
        else return loadUnaligned<LanesOf<Real, L>>(first + element);
    }
};

template <class Real>
struct ElementWriter {
    Real* first;

    void store(int element, Real value) const { first[element] = value; }
    void store(int element, VectorOf<Real> value) const { storeUnaligned(first + element, value); }
};

// Every result depends on every input, so all loads come before the first store.
template <class Real, int n>
void fixedTransform(const Real* src, Real* dst) {
    using Network = FixedTransformNetwork<Real, n>;
    constexpr int L = Network::lanes;
    Network::template run<LanesOf<Real, L>>(ElementReader<Real, L>{src}, ElementWriter<Real>{dst});
}

}   // namespace kfm::dct4
