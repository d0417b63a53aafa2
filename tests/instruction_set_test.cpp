// Every function of the libraries runs on any processor with SSE2, every function of the variant
// on any with AVX2, and none multiplies and adds at once. Which instructions those have is not
// listed here: the assembler is told the processor and given the machine code again.
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <set>

#include "registry/loaded_library.h"
#include "support/command.h"
#include "support/disassembly.h"
#include "support/rows_library.h"

namespace kfm::tests {
namespace {

using registry::loadedLibrary;

// +ibt: where a compiler marks the targets of jumps, older processors see instructions without
// effect.
#ifdef __x86_64__
constexpr char oldestProcessor[] = "--64 -march=generic64+ibt";
#else
constexpr char oldestProcessor[] = "--32 -march=pentium4+ibt";
#endif
const std::string processor =
    std::string(oldestProcessor) + (loadedLibrary().variant ? "+avx2" : "");

// What the assembler has to say against the text.
std::vector<std::string> complaints(const std::string& text) {
    // The base library and its variant are tested at the same time.
    const std::string file =
        testing::TempDir() + "instruction_set_" + std::to_string(getpid()) + ".s";
    std::ofstream(file) << text;
    // Padding has forms with an index register that does not exist.
    const std::string command = KFM_AS " " + processor + " -mindex-reg -o /dev/null '" + file + "'";
    const std::vector<std::string> lines = linesOf(command + " 2>&1 || true");
    std::remove(file.c_str());
    return lines;
}

// What objdump prints, as source text: without the comment. To older processors tzcnt is bsf, with
// a prefix that they ignore, and compilers write it where both do the same.
std::string source(const Instruction& instruction) {
    const std::string mnemonic = instruction.mnemonic == "tzcnt" ? "bsf" : instruction.mnemonic;
    return mnemonic + " " + instruction.operands.substr(0, instruction.operands.find('#')) + "\n";
}

TEST(InstructionSet, IsThatOfTheOldestProcessorInEveryFunction) {
    std::set<std::string> seen;
    std::string text;
    for (const std::string& library :
         {loadedLibrary().file, rowsLibrary(), std::string(KFM_CORE_FILE)}) {
        ASSERT_GT(disassembly(library).size(), 1u);
        for (const auto& [name, code] : disassembly(library)) {
            text += "# 1 \"" + name + "\"\n";   // complaints name the function
            for (const Instruction& instruction : code)
                if (!instruction.isJump() && !instruction.isCall())
                    if (const std::string line = source(instruction); seen.insert(line).second)
                        text += line;
        }
    }
    for (const std::string& complaint : complaints(text)) ADD_FAILURE() << complaint;
}

// One instruction of each extension that compilers know to use.
TEST(InstructionSet, IsEnforcedByTheAssembler) {
    std::vector<const char*> beyond = {"lzcntl %eax, %eax", "andnl %eax, %eax, %eax",
                                       "movbel (%eax), %eax", "vaddpd %zmm1, %zmm0, %zmm0",
                                       "vfmadd132sd %xmm2, %xmm1, %xmm0"};
    if (!loadedLibrary().variant)
        beyond.insert(beyond.end(),
                      {"lddqu (%eax), %xmm0", "pshufb %xmm1, %xmm0", "roundsd $1, %xmm1, %xmm0",
                       "crc32l %eax, %eax", "popcntl %eax, %eax", "vaddpd %xmm1, %xmm0, %xmm0"});
    for (const char* line : beyond)
        EXPECT_FALSE(complaints(line + std::string("\n")).empty()) << line;
    EXPECT_TRUE(complaints("cmovel %eax, %ecx\ncvttpd2dq %xmm0, %xmm1\n").empty());
}

}   // namespace
}   // namespace kfm::tests
