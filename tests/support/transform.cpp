// Pairs each row of the table of exported functions with its registry entry, and calls it.
#include "support/transform.h"

#include <algorithm>
#include <cstring>

#include "support/fault.h"

namespace kfm::tests {
namespace {

std::vector<Transform> collect(bool generic) {
    std::vector<Transform> result;
    for (const registry::Function& function : registry::functions()) {
        const registry::Family* family =
            function.family ? registry::findFamily(function.family) : nullptr;
        if (!family || (function.length == 0) != generic) continue;
        const registry::Element* element = registry::findElement(function.element);
        const int member = generic ? family->last : function.length;
        result.push_back({&function, family, element, static_cast<int>(family->samples(member))});
    }
    return result;
}

}   // namespace

std::string Transform::name() const { return function->name + std::strlen("kfmg"); }

bool Transform::reads(std::size_t i) const {
    const std::vector<Slot> spectrum = slots(source(), length);
    return spectrum.empty() || !spectrum[i].alwaysZero(length);
}

std::size_t Transform::readBytes() const {
    std::size_t count = sourceReals();
    while (!reads(count - 1)) --count;
    return count * realBytes();
}

std::ostream& operator<<(std::ostream& out, const Transform& transform) {
    return out << transform.name();
}

const std::vector<Transform>& fixedTransforms() {
    static const std::vector<Transform> all = collect(false);
    return all;
}

const std::vector<Transform>& genericTransforms() {
    static const std::vector<Transform> all = collect(true);
    return all;
}

const Transform* findTransform(std::string_view family, int length, std::string_view element) {
    const auto& all = fixedTransforms();
    const auto found = std::ranges::find_if(all, [&](const Transform& transform) {
        return transform.family->name == family && transform.function->length == length &&
               transform.element->suffix == element;
    });
    return found == all.end() ? nullptr : &*found;
}

const Transform& genericOf(const Transform& fixed) {
    return *std::ranges::find_if(genericTransforms(), [&](const Transform& generic) {
        return generic.family == fixed.family && generic.element == fixed.element;
    });
}

namespace {

// Pointers to any element type are passed alike, so one signature serves all element types.
template <class... Numbers>
KfmStatus callAddress(const Transform& transform, void* buffer, const void* source,
                      void* destination, Numbers... numbers) {
    void (*const address)() = transform.function->address;
    if (!transform.family->byOrder)
        return reinterpret_cast<KfmStatus (*)(const void*, void*, Numbers...)>(
            address)(source, destination, numbers...);
    return reinterpret_cast<KfmStatus (*)(const void*, void*, Numbers..., void*)>(
        address)(source, destination, numbers..., buffer);
}

}   // namespace

KfmStatus call(const Transform& fixed, const void* source, void* destination, int flag,
               void* buffer) {
    KfmStatus status = crashed;
    EXPECT_TRUE(survives([&] { status = callAddress(fixed, buffer, source, destination, flag); }))
        << fixed << " crashed: flag " << flag << ", source " << source << ", destination "
        << destination;
    return status;
}

KfmStatus call(const Transform& generic, const void* source, void* destination, int length,
               int flag, void* buffer) {
    KfmStatus status = crashed;
    EXPECT_TRUE(survives([&] {
        status = callAddress(generic, buffer, source, destination, length, flag);
    })) << generic
        << " crashed: length " << length << ", flag " << flag;
    return status;
}

std::string caseName(const testing::TestParamInfo<Transform>& info) { return info.param.name(); }

}   // namespace kfm::tests
