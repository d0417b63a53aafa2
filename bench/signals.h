// The data the timed functions work on: bounded, nowhere near zero, the same in every run; and how
// a fixed-length function is called on them.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>

#include "kfmgen.h"
#include "registry/registry.h"

namespace kfm::bench {

// A source and a destination in one block. They stand next to each other: at equal offsets within
// a page, loads of the next call would wait for stores of the last one.
class Signals {
public:
    Signals(int length, const registry::Element& element, bool unaligned = false,
            bool inPlace = false)
        : bytes((length * element.bytes + lineBytes) / lineBytes * lineBytes),
          block(static_cast<std::byte*>(std::aligned_alloc(lineBytes, 2 * bytes)), &std::free),
          start(block.get() + (unaligned ? 8 : 0)), inPlace(inPlace) {
        if (element.doublePrecision)
            fill<double>();
        else
            fill<float>();
    }

    void* source() const { return start; }
    void* destination() const { return inPlace ? start : start + bytes; }

private:
    template <class Real>
    void fill() {
        std::minstd_rand random;
        std::uniform_real_distribution<Real> magnitude(Real(0.25), Real(1));
        std::generate_n(static_cast<Real*>(source()), (bytes - 8) / sizeof(Real),
                        [&] { return random() % 2 ? magnitude(random) : -magnitude(random); });
    }

    static constexpr std::size_t lineBytes = 64;
    std::size_t bytes;   // of each signal, with room for the offset of an unaligned one
    std::unique_ptr<std::byte, decltype(&std::free)> block;
    std::byte* start;
    bool inPlace;
};

// Every fixed-length function, whatever its element types.
using Transform = KfmStatus (*)(const void*, void*, int);

inline std::function<void(long)> repeatCall(Transform transform,
                                            std::shared_ptr<const Signals> signals, int flag) {
    return [=](long calls) {
        for (long i = 0; i < calls; ++i)
            transform(signals->source(), signals->destination(), flag);
    };
}

}   // namespace kfm::bench
