// The short transforms: straight from the caller's array to the caller's array.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int n>
struct FixedTransformNetwork;

// Slots are elements, or where a vector of them starts.
template <class Network, class Real>
struct ElementReader {
    const Real* first;

    typename Network::Vector load(int element) const {
        if constexpr (sizeof(typename Network::Vector) == sizeof(Real)) return first[element];
        else return loadUnaligned<typename Network::Vector>(first + element);
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
    Network::run(ElementReader<Network, Real>{src}, ElementWriter<Real>{dst});
}

}   // namespace kfm::dct4
