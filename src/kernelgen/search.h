// The off-line search for the factor trees with the smallest errors, among the trees that do the
// same work with other roundings. Its winners are rows of the factor tables.
#pragma once

#include <string>

#include "kernelgen/generator.h"

namespace kfm::kernelgen {

enum class Goal {
    mean,       // the mean error on random signals
    impulses,   // the worst error on single impulses
};

// Tries so many random trees that do the work of the one on record. A table of that one and of each
// that is better than all before: mean and worst error over so many random signals, worst error on
// impulses, vector operations. Errors are those of the forward transform; the inverse has the same.
std::string errorTable(const KernelFamily& family, int length, const registry::Element& element,
                       Goal goal, int signals, int tries);

}   // namespace kfm::kernelgen
