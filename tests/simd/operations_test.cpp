// That each vector operation is the instructions it should be.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/disassembly.h"

namespace kfm::tests {
namespace {

TEST(VectorOperations, AreFewInstructions) {
    static constexpr struct {
        const char* name;
        int instructions;
    } operations[] = {
#define KFM_OPERATION_COUNT(name, instructions, ...) {"operation_" #name, instructions},
#include "simd/operations.def"
    };
    for (const auto& [name, instructions] : operations) {
        const Code& code = disassembly(KFM_OPERATIONS).at(name);
        const auto end = std::ranges::find_if(code, &Instruction::returns);
        ASSERT_NE(end, code.end()) << name;
        std::string text;
        for (auto at = code.begin(); at != end; ++at)
            text += at->mnemonic + " " + at->operands + "\n";
        EXPECT_LE(end - code.begin(), instructions) << name << "\n" << text;
    }
}

}   // namespace
}   // namespace kfm::tests
