// The short transforms: straight from the caller's array to the caller's array.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int n>
struct FixedTransformNetwork;

// Slots are vectors of L elements, side by side. Two of them are the halves of a wider one where
// the target has it; "apart" even neighbours are loaded one by one, which does not wait where they
// were stored so just before.
template <class Real, int L>
struct ElementReader {
    const Real* first;

    LanesOf<Real, L> load(int slot) const {
        if constexpr (L == 1) return first[slot];
        else return loadUnaligned<LanesOf<Real, L>>(first + slot * L);
    }
    [[gnu::always_inline]] auto loadApart(int low, int high) const {
        return join<0, 0>(asLower(load(low)), asLower(load(high)));
    }
    [[gnu::always_inline]] auto load(int low, int high) const {
        if (high == low + 1) return loadUnaligned<LanesOf<Real, 2 * L>>(first + low * L);
        return loadApart(low, high);
    }
};

template <class Real, int L>
struct ElementWriter {
    Real* first;

    void store(int slot, LanesOf<Real, L> value) const {
        if constexpr (L == 1) first[slot] = value;
        else storeUnaligned(first + slot * L, value);
    }
    [[gnu::always_inline]] void store(int low, int high, auto halves) const {
        if (high == low + 1) return storeUnaligned(first + low * L, halves);
        store(low, lower(halves));
        store(high, upper(halves));
    }
};

// Every result depends on every input, so all loads come before the first store.
template <class Real, int n>
void fixedTransform(const Real* src, Real* dst) {
    using Network = FixedTransformNetwork<Real, n>;
    constexpr int L = Network::lanes;
    Network::template run<LanesOf<Real, L>>(ElementReader<Real, L>{src},
                                            ElementWriter<Real, L>{dst});
}

}   // namespace kfm::dct4
