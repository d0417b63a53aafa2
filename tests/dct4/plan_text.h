// A plan as text: the tree of its environments with their rules and sizes.
#pragma once

#include <string>

namespace kfm::tests {

// One line, "env1[6 32*128](envfCompose env2[1](...) env3[1](...))": rule and sizes in brackets,
// children in the order in which they were made in parentheses. Checks on the way that every object
// tells its own size and lies inside the first `size` bytes of `block`.
template <class Real>
std::string planText(const void* handle, const void* block, int size);

}   // namespace kfm::tests
