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

// Descents from the tree on record and from so many others that do the same work: one change at a
// time, the best of all neighbours, until none is better. A table of the tree on record and of where
// the descents end: mean and worst error over so many random signals, worst error on impulses,
// vector operations. Errors are those of the forward transform; the inverse has the same.
std::string errorTable(const KernelFamily& family, int length, const registry::Element& element,
                       Goal goal, int signals, int starts);

}   // namespace kfm::kernelgen
