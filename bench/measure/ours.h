// The fixed-length functions as subjects of the timer.
#pragma once

#include <memory>
#include <stdexcept>

#include "registry/functions.h"
#include "signals.h"

namespace kfm::bench {

// How they are called.
struct Manner {
    bool unaligned = false, inPlace = false, noBuffer = false;
};

// In place every call transforms the last result. Unscaled it grows to infinity, which costs
// nothing, and never vanishes into denormal numbers, which would.
template <class... Further>
std::function<void(long)> repeatUnscaled(const char* name, void (*address)(),
                                         std::shared_ptr<const Signals> signals,
                                         Further... further) {
    const auto transform =
        reinterpret_cast<KfmStatus (*)(const void*, void*, int, Further...)>(address);
    if (transform(signals->source(), signals->destination(), kfmScaleNone, further...) != kfmOk)
        throw std::runtime_error(std::string(name) + " fails");
    return repeatCall(transform, signals, kfmScaleNone, further...);
}

// Arrays and a work buffer for a function, whichever file of the library it is taken from.
class Arrays {
public:
    Arrays(const registry::Function& function, const Manner& manner)
        : function(function), byOrder(registry::findFamily(function.family)->byOrder) {
        const registry::Family& family = *registry::findFamily(function.family);
        const int samples = static_cast<int>(family.samples(function.length));
        signals = std::make_shared<Signals>(samples, *registry::findElement(function.element),
                                            manner.unaligned, manner.inPlace);
        // Twice the signal is more than any order asks for.
        if (byOrder && !manner.noBuffer)
            buffer.reset(static_cast<Kfm8u*>(
                             std::aligned_alloc(64, (2 * samples + 8) * sizeof(double))),
                         &std::free);
    }

    std::function<void(long)> repeat(void (*address)()) const {
        if (!byOrder) return repeatUnscaled(function.name, address, signals);
        const auto repeat = repeatUnscaled(function.name, address, signals, buffer.get());
        return [buffer = buffer, repeat](long calls) { repeat(calls); };
    }

private:
    const registry::Function& function;
    bool byOrder;
    std::shared_ptr<Signals> signals;
    std::shared_ptr<Kfm8u> buffer;
};

}   // namespace kfm::bench
