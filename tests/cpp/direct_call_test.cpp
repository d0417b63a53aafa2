// That the face costs nothing: with a length and sizes that the compiler knows, a call is the call of
// the C function and nothing else.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "kfmgen.hpp"
#include "support/command.h"

namespace kfm::tests {

extern "C" [[gnu::noinline]] KfmStatus transformDirectly(
    std::span<const std::complex<float>, 16>* src, std::span<std::complex<float>, 16>* dst) {
    return transform<Dft, 16>(*src, *dst, Scale::none).status();
}

namespace {

TEST(KnownLength, IsOneDirectCall) {
    // An emulator's process is another program: the link that this one sees leads to the file.
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    int calls = 0, branches = 0;
    for (const std::string& line :
         linesOf(KFM_OBJDUMP " -d --no-show-raw-insn --disassemble=transformDirectly '" + program +
                 "'")) {
        if (line.find("get_pc_thunk") != std::string::npos) continue;
        calls += std::regex_search(line, std::regex("(call|jmp|bl?)\\s.*<kfmgDFTFwd_CToC_16_32fc"));
        branches +=
            std::regex_search(line, std::regex("\t(call|j[a-z]+|bl?|b\\.[a-z]+|[ct]bn?z)\\s"));
    }
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(branches, 1) << "and no test before it";
}

}   // namespace
}   // namespace kfm::tests
