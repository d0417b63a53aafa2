// The data the timed functions work on: bounded, nowhere near zero, the same in every run; and how
// a fixed-length function is called on them.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>
#include <type_traits>

#include "kfmgen.h"
#include "registry/registry.h"

namespace kfm::bench {

// A source and a destination next to each other: at equal offsets within a page, loads of the next
// call would wait for stores of the last one. The same can befall loads of constants or of spilled
// values, wherever the data stand; so there are several placements, which batches take in turns.
class Signals {
public:
    Signals(int length, const registry::Element& element, bool unaligned = false,
            bool inPlace = false)
        : Signals(element, bytesOf(1, length, element) / lineBytes * lineBytes, unaligned,
                  inPlace) {}

    // Arrays of rows. Loads of the next row follow stores of the last one within a call, and many
    // rows come past every offset: half a page between the two is as far apart as they get.
    static std::shared_ptr<const Signals> ofRows(int rows, int length,
                                                 const registry::Element& element) {
        const std::size_t halves = (bytesOf(rows, length, element) / halfPage + 1) | 1;
        return std::shared_ptr<const Signals>(
            new Signals(element, halves * halfPage, false, false));
    }

    // A half spectrum takes up to two reals more than the signal.
    static int mostElements(int length, const registry::Element& element) {
        return length + (element.complex ? 0 : 2);
    }

    static constexpr int placements = 4;
    void* source(int placement = 0) const { return start + placement * stride; }
    void* destination(int placement = 0) const {
        return start + placement * stride + (inPlace ? 0 : bytes);
    }

private:
    Signals(const registry::Element& element, std::size_t bytes, bool unaligned, bool inPlace)
        : bytes(bytes), stride((2 * bytes + pageBytes / placements) / lineBytes * lineBytes),
          block(static_cast<std::byte*>(std::aligned_alloc(lineBytes, placements * stride)),
                &std::free),
          start(block.get() + (unaligned ? 8 : 0)), inPlace(inPlace) {
        for (int placement = 0; placement < placements; ++placement)
            if (element.doublePrecision) fill<double>(placement);
            else fill<float>(placement);
    }

    // With room for the offset of an unaligned signal.
    static std::size_t bytesOf(std::size_t rows, int length, const registry::Element& element) {
        return rows * mostElements(length, element) * element.bytes + lineBytes;
    }

    template <class Real>
    void fill(int placement) {
        std::minstd_rand random;
        std::uniform_real_distribution<Real> magnitude(Real(0.25), Real(1));
        std::generate_n(static_cast<Real*>(source(placement)), (bytes - 8) / sizeof(Real),
                        [&] { return random() % 2 ? magnitude(random) : -magnitude(random); });
    }

    static constexpr std::size_t lineBytes = 64, pageBytes = 4096, halfPage = pageBytes / 2;
    std::size_t bytes;    // from a source to its destination
    std::size_t stride;   // between placements
    std::unique_ptr<std::byte, decltype(&std::free)> block;
    std::byte* start;
    bool inPlace;
};

// Every fixed-length function, whatever its element types, without and with a work buffer.
using Transform = KfmStatus (*)(const void*, void*, int);
using BufferedTransform = KfmStatus (*)(const void*, void*, int, Kfm8u*);

// Makes calls on the placements, which batches take in turns.
template <class Call>
std::function<void(long)> repeatOn(std::shared_ptr<const Signals> signals, Call call) {
    return [=, batch = 0](long calls) mutable {
        const int placement = batch++ % Signals::placements;
        void* const source = signals->source(placement);
        void* const destination = signals->destination(placement);
        for (long i = 0; i < calls; ++i) call(source, destination);
    };
}

template <class... Further>
std::function<void(long)> repeatCall(KfmStatus (*transform)(const void*, void*, int, Further...),
                                     std::shared_ptr<const Signals> signals, int flag,
                                     std::type_identity_t<Further>... further) {
    return repeatOn(std::move(signals), [=](const void* source, void* destination) {
        transform(source, destination, flag, further...);
    });
}

}   // namespace kfm::bench
