// The functions under test. Every test walks fixedTransforms() or genericTransforms(), which come
// from the registry, and calls through here, so that a family or a length that is registered is
// tested and a call that crashes is one failed case.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "definition/packed_spectrum.h"
#include "kfmgen.h"
#include "registry/functions.h"
#include "registry/registry.h"

namespace kfm::tests {

using definition::Content, definition::Slot;

struct Transform {
    const registry::Function* function;
    const registry::Family* family;
    const registry::Element* element;
    int length;   // of the fixed function's signals; for a generic entry the longest one

    std::string name() const;   // "DFTFwd_CToC_16_32fc"
    std::size_t realBytes() const { return element->doublePrecision ? 8 : 4; }
    bool inverse() const { return family->inverse(); }
    bool hartley() const { return family->name == "Hartley"; }
    bool walshHadamard() const { return family->name == "WHT"; }
    bool selfInverse() const { return hartley() || walshHadamard(); }
    Content source() const { return definition::contentsOf(family->name).source; }
    Content destination() const { return definition::contentsOf(family->name).destination; }
    std::size_t sourceReals() const { return definition::reals(source(), length); }
    std::size_t destinationReals() const { return definition::reals(destination(), length); }
    bool reads(std::size_t i) const;   // whether element i of the source matters
    // Up to the last real that is read: the array may end there.
    std::size_t readBytes() const;
    std::size_t sourceBytes() const { return sourceReals() * realBytes(); }
    std::size_t destinationBytes() const { return destinationReals() * realBytes(); }
    // From one address that is served to the next.
    std::size_t addressStep() const {
        return element->complex || walshHadamard() ? 1 : realBytes();
    }
};

std::ostream& operator<<(std::ostream& out, const Transform& transform);

const std::vector<Transform>& fixedTransforms();
const std::vector<Transform>& genericTransforms();

// The fixed function of another family or length (or order), or null when the registry has none.
const Transform* findTransform(std::string_view family, int length, std::string_view element);
// Of its family and element type.
const Transform& genericOf(const Transform& fixed);

inline constexpr std::array<int, 4> allFlags = {kfmScaleFwdByN, kfmScaleInvByN, kfmScaleBySqrtN,
                                                kfmScaleNone};

// A call that faults counts as a failure of the running test and returns `crashed`. `buffer` is
// passed where there may be a work buffer.
inline constexpr KfmStatus crashed = 0x7fff;
KfmStatus call(const Transform& fixed, const void* source, void* destination, int flag,
               void* buffer = nullptr);
KfmStatus call(const Transform& generic, const void* source, void* destination, int length,
               int flag, void* buffer = nullptr);

std::string caseName(const testing::TestParamInfo<Transform>& info);

}   // namespace kfm::tests

#define KFM_FOR_EVERY_FIXED_TRANSFORM(Suite)                                              \
    INSTANTIATE_TEST_SUITE_P(, Suite, testing::ValuesIn(::kfm::tests::fixedTransforms()), \
                             ::kfm::tests::caseName)
#define KFM_FOR_EVERY_GENERIC_TRANSFORM(Suite)                                              \
    INSTANTIATE_TEST_SUITE_P(, Suite, testing::ValuesIn(::kfm::tests::genericTransforms()), \
                             ::kfm::tests::caseName)
