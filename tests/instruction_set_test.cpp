// Every function of the libraries runs on any processor of the target (x86: with SSE2), every
// function of the variant on any with AVX2, and none multiplies and adds at once. Which instructions
// those have is not listed here: the assembler is told the processor and given the machine code again.
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
// effect. Padding of x86 has forms with an index register that does not exist.
#if defined(__aarch64__)
constexpr char oldestProcessor[] = "-march=armv8-a";
#elif defined(__x86_64__)
constexpr char oldestProcessor[] = "-mindex-reg --64 -march=generic64+ibt";
#else
constexpr char oldestProcessor[] = "-mindex-reg --32 -march=pentium4+ibt";
#endif
const std::string processor =
    std::string(oldestProcessor) + (loadedLibrary().variant ? "+avx2" : "");

// What the assembler has to say against the text.
std::vector<std::string> complaints(const std::string& text) {
    // The base library and its variant are tested at the same time.
    const std::string file =
        testing::TempDir() + "instruction_set_" + std::to_string(getpid()) + ".s";
    std::ofstream(file) << text;
    const std::string command = KFM_AS " " + processor + " -o /dev/null '" + file + "'";
    const std::vector<std::string> lines = linesOf(command + " 2>&1 || true");
    std::remove(file.c_str());
    return lines;
}

// What objdump prints, as source text: without comments. To older processors of x86 tzcnt is bsf,
// with a prefix that they ignore, and compilers write it where both do the same.
#ifdef __aarch64__
std::string source(const Instruction& instruction) {
    const std::string operands = instruction.operands.substr(0, instruction.operands.find("//"));
    const std::size_t named = operands.find(" <");   // an address, of a page
    return instruction.mnemonic + " " +
           (named == std::string::npos ? operands
                                       : operands.substr(0, operands.find(',')) + ", .") +
           "\n";
}
#else
std::string source(const Instruction& instruction) {
    const std::string mnemonic = instruction.mnemonic == "tzcnt" ? "bsf" : instruction.mnemonic;
    return mnemonic + " " + instruction.operands.substr(0, instruction.operands.find('#')) + "\n";
}
#endif

std::vector<std::string> allLibraries() {
    return {loadedLibrary().file, rowsLibrary(), KFM_CORE_FILE};
}

TEST(InstructionSet, IsThatOfTheOldestProcessorInEveryFunction) {
    std::set<std::string> seen;
    std::string text;
    for (const std::string& library : allLibraries()) {
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
#ifdef __aarch64__

TEST(InstructionSet, IsEnforcedByTheAssembler) {
    for (const char* line :
         {"ldadd w0, w1, [x2]", "fadd v0.8h, v0.8h, v1.8h", "sdot v0.4s, v1.16b, v2.16b",
          "fcmla v0.4s, v1.4s, v2.4s, #90", "fadd z0.s, z0.s, z1.s", "crc32b w0, w0, w1"})
        EXPECT_FALSE(complaints(line + std::string("\n")).empty()) << line;
    EXPECT_TRUE(complaints("fcvtl v0.2d, v1.2s\nld1r {v0.4s}, [x0]\n").empty());
}

// The oldest processor knows how, in one rounding.
TEST(InstructionSet, NothingMultipliesAndAddsAtOnce) {
    for (const std::string& library : allLibraries())
        for (const auto& [name, code] : disassembly(library))
            for (const Instruction& instruction : code)
                for (const char* fused : {"fmadd", "fmsub", "fnmadd", "fnmsub", "fmla", "fmls"})
                    EXPECT_FALSE(instruction.mnemonic.starts_with(fused)) << name;
}

#else

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

#endif

}   // namespace
}   // namespace kfm::tests
