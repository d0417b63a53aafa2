// One fixed-length function of the library, chosen by name at run time.
#pragma once

#include <span>
#include <string>

#include "registry/functions.h"
#include "samples.h"

namespace kfm::tool {

class FixedTransform {
public:
    // `flag` is one of the library's scaling flags. Throws InputError for a family or a length
    // that does not exist.
    FixedTransform(const std::string& family, int length, bool doublePrecision, int flag);

    int length() const { return function_->length; }
    bool doublePrecision() const { return doublePrecision_; }

    // `frame` holds length() samples. Values are those of the chosen precision.
    Samples operator()(std::span<const Sample> frame) const;

private:
    const registry::Function* function_;
    bool doublePrecision_;
    int flag_;
};

}   // namespace kfm::tool
