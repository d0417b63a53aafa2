// The fixed-length functions of the library, chosen by name at run time.
#pragma once

#include "transform/frame_transform.h"

namespace kfm::tool {

// The registry's name of a family: with a layout, of the real DFT in the direction `family`, DFTFwd
// or DFTInv; without one, `family` itself. Empty means forward, and complex where there is no
// layout. Throws UsageError for a layout beside another family.
std::string familyName(const std::string& family, std::optional<SpectrumLayout> layout);

// `flag` is one of the library's scaling flags. Throws UsageError for a family or a length that
// does not exist.
std::unique_ptr<FrameTransform> fixedTransform(const std::string& name, int length,
                                               bool doublePrecision, int flag);

}   // namespace kfm::tool
