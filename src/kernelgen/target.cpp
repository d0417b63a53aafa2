#include "kernelgen/target.h"

#include <algorithm>
#include <array>

namespace kfm::kernelgen {
namespace {
constexpr std::array<Target, 4> allTargets = {{
    {"sse2-x86-64", 16, 16, false, ""},
    {"avx2-x86-64", 32, 16, true, "sse2-x86-64"},
    {"sse2-i386", 16, 8, false, ""},
    {"neon-aarch64", 16, 32, true, "sse2-x86-64"},
}};
}   // namespace

std::span<const Target> targets() { return allTargets; }

const Target* findTarget(std::string_view name) {
    const auto found = std::ranges::find(allTargets, name, &Target::name);
    return found == allTargets.end() ? nullptr : &*found;
}

}   // namespace kfm::kernelgen
