// What the compiler made of the kernels: straight-line code that calls nothing, vector arithmetic
// only, and aligned moves in the aligned kernels.
#include <gtest/gtest.h>

#include <algorithm>

#include "registry/loaded_library.h"
#include "registry/registry.h"
#include "support/disassembly.h"

namespace kfm::tests {
namespace {

using registry::loadedLibrary;

struct Kernel {
    std::string name;
    std::string unaligned;   // its copy, empty when it is the copy or has none
    bool aligned;            // exported, with a copy for other addresses
    bool usesBuffer;         // so it loops over blocks, and may allocate
};

const std::map<std::string, Code>& library() { return disassembly(loadedLibrary().file); }

std::vector<Kernel> kernels() {
    std::vector<Kernel> result;
    for (const registry::Family& family : registry::families())
        for (const registry::Element* element : family.elements)
            for (int length = family.first; length <= family.last; ++length) {
                const bool copied = !loadedLibrary().movesAnywhere() &&
                                    registry::hasUnalignedCopy(family, length, *element);
                const std::string copy =
                    copied ? registry::unalignedName(family, length, *element) : "";
                const bool buffer = registry::usesBuffer(family, length);
                result.push_back(
                    {registry::functionName(family, length, *element), copy, copied, buffer});
                if (copied) result.push_back({copy, "", false, buffer});
            }
    return result;
}

// The function that a jump or call names, without the offset of a target inside it.
std::string targetFunction(const Instruction& instruction) {
    const std::size_t open = instruction.operands.find('<');
    if (open == std::string::npos) return "";
    return instruction.operands.substr(open + 1,
                                       instruction.operands.find_first_of("+>@", open) - open - 1);
}

// The last operand, before the name of the target.
unsigned long targetAddress(const Instruction& instruction) {
    const std::string address = instruction.operands.substr(0, instruction.operands.find(" <"));
    return std::stoul(address.substr(address.find_last_of(" ,") + 1), nullptr, 16);
}

// Indices of the instructions that may run right after number `i`.
std::vector<std::size_t> successors(const Code& code, std::size_t i, const std::string& name) {
    std::vector<std::size_t> result;
    if (!code[i].leaves() && i + 1 < code.size()) result.push_back(i + 1);
    if (code[i].isJump() && targetFunction(code[i]) == name) {
        const auto target =
            std::ranges::lower_bound(code, targetAddress(code[i]), {}, &Instruction::address);
        result.push_back(static_cast<std::size_t>(target - code.begin()));
    }
    return result;
}

// By topological order (Kahn): what is never freed of its predecessors is on or behind a cycle.
bool hasCycle(const Code& code, const std::string& name) {
    std::vector<int> predecessors(code.size());
    for (std::size_t i = 0; i < code.size(); ++i)
        for (std::size_t next : successors(code, i, name)) ++predecessors[next];
    std::vector<std::size_t> ready;
    for (std::size_t i = 0; i < code.size(); ++i)
        if (predecessors[i] == 0) ready.push_back(i);
    std::size_t ordered = 0;
    for (; !ready.empty(); ++ordered) {
        const std::size_t at = ready.back();
        ready.pop_back();
        for (std::size_t next : successors(code, at, name))
            if (--predecessors[next] == 0) ready.push_back(next);
    }
    return ordered != code.size();
}

// The first instruction for which `wrong` holds, as text, or nothing.
template <class Predicate>
std::string firstWhere(const Code& code, Predicate wrong) {
    const auto found = std::ranges::find_if(code, wrong);
    return found == code.end() ? "" : found->mnemonic + " " + found->operands;
}

// `check` returns what is wrong with a kernel, or nothing; all complaints are reported at once.
template <class Check>
void forEveryKernel(Check check) {
    std::string complaints;
    for (const Kernel& kernel : kernels()) {
        const auto code = library().find(kernel.name);
        const std::string wrong = code == library().end() ? "not found: is the library stripped?"
                                                          : check(kernel, code->second);
        if (!wrong.empty()) complaints += kernel.name + ": " + wrong + "\n";
    }
    EXPECT_TRUE(complaints.empty()) << complaints;
}

TEST(Disassembly, UnalignedCopiesExistExactlyWhereRegistered) {
    std::vector<std::string> expected, present;
    for (const Kernel& kernel : kernels())
        if (!kernel.unaligned.empty()) expected.push_back(kernel.unaligned);
    for (const auto& [name, code] : library())
        if (name.starts_with("owng") && name.find("_unaligned") != std::string::npos)
            present.push_back(name);
    std::ranges::sort(expected);
    EXPECT_EQ(present, expected);
}

TEST(Disassembly, KernelsRunStraightThrough) {
    forEveryKernel([](const Kernel& kernel, const Code& code) {
        if (kernel.usesBuffer) return std::string();
        if (hasCycle(code, kernel.name)) return std::string("has a cycle");
        return firstWhere(code, [](const Instruction& instruction) {
            return instruction.mnemonic.starts_with("loop") ||
                   instruction.mnemonic.starts_with("rep") || instruction.jumpsToRegister();
        });
    });
}

TEST(Disassembly, KernelsCallOnlyTheirUnalignedCopyAndTheAllocator) {
    forEveryKernel([](const Kernel& kernel, const Code& code) {
        return firstWhere(code, [&](const Instruction& instruction) {
            if (!instruction.isCall() && !instruction.isJump()) return false;
            const std::string target = targetFunction(instruction);
            // 32 bits: a call to the next instruction tells clang where the code is.
            const bool inside = instruction.operands.find('+') != std::string::npos;
            const bool own = target == kernel.name && (instruction.isJump() || inside);
            const bool copy = !target.empty() && target == kernel.unaligned;
            const bool programCounter = target.starts_with("__x86.get_pc_thunk.");
            const bool allocator =
                kernel.usesBuffer && (target == "kfmMalloc" || target == "kfmFree");
            return !own && !copy && !programCounter && !allocator;
        });
    });
}

// Real transforms of length 2 and 4 have no constant to multiply by.
TEST(Disassembly, SingleKernelsWithoutProductsStayInSinglePrecision) {
    forEveryKernel([](const Kernel& kernel, const Code& code) {
        if (!kernel.name.ends_with("_2_32f") && !kernel.name.ends_with("_4_32f"))
            return std::string();
        return firstWhere(code, [](const Instruction& instruction) {
            return instruction.converts() || instruction.computesWide();
        });
    });
}

#ifndef __aarch64__

// An instruction of the old encoding beside one that uses the upper halves of the registers waits
// for those, and so does the caller's where a function returns with them in use.
TEST(Disassembly, VariantsKeepToTheNewEncodingAndLeaveNoUpperHalves) {
    if (!loadedLibrary().variant) GTEST_SKIP() << "the base build knows one encoding";
    for (const auto& [name, code] : library()) {
        bool upperHalves = false;
        for (const Instruction& instruction : code) {
            const bool isVector = instruction.uses("%xmm") || instruction.uses("%ymm");
            EXPECT_TRUE(!isVector || instruction.mnemonic.starts_with('v'))
                << name << ": " << instruction.mnemonic << ' ' << instruction.operands;
            upperHalves |= instruction.uses("%ymm");
            if (instruction.mnemonic == "vzeroupper") upperHalves = false;
            EXPECT_FALSE(upperHalves && instruction.returns()) << name;
        }
    }
}

TEST(Disassembly, KernelsDoNotUseTheX87) {
    forEveryKernel([](const Kernel&, const Code& code) {
        return firstWhere(code, [](const Instruction& instruction) {
            return instruction.mnemonic[0] == 'f';
        });
    });
}

// The copies of double precision move a vector by its halves, a single complex element of single
// precision is half a vector. Not for clang, which joins halves that turn out to be neighbours.
#ifndef __clang__
TEST(Disassembly, AlignedKernelsUseAlignedMoves) {
    forEveryKernel([](const Kernel& kernel, const Code& code) {
        if (!kernel.aligned) return std::string();
        const bool mayHalve = kernel.name.ends_with("_32fc");
        return firstWhere(code, [&](const Instruction& instruction) {
            return instruction.movesUnaligned() || (instruction.movesUpperHalf() && !mayHalve);
        });
    });
}
#endif

#endif

}   // namespace
}   // namespace kfm::tests
