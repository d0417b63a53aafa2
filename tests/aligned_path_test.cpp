// Which of its two paths a function takes. Both give the same bits, so only the instructions tell:
// each call is run step by step.
#include <dlfcn.h>
#include <sys/ucontext.h>

#include <algorithm>
#include <csignal>

#include "registry/loaded_library.h"
#include "support/buffer.h"
#include "support/disassembly.h"
#include "support/transform.h"

namespace kfm::tests {
namespace {

using registry::loadedLibrary;

#ifdef __x86_64__
constexpr int programCounter = REG_RIP;
#else
constexpr int programCounter = REG_EIP;
#endif
constexpr greg_t trapFlag = 0x100;

// Long enough for a function that holds both paths to show how it stores, and for any to decide.
constexpr std::size_t enough = 128;

// The first instructions of a call that lie inside [begin, end), relative to `begin`.
class Stepping {
public:
    Stepping(std::uintptr_t begin, std::uintptr_t end) : begin_(begin), end_(end) {
        current_ = this;
        struct sigaction action = {};
        action.sa_sigaction = onTrap;
        action.sa_flags = SA_SIGINFO;
        sigaction(SIGTRAP, &action, &before_);
        addresses_.reserve(enough);
    }
    ~Stepping() { sigaction(SIGTRAP, &before_, nullptr); }
    Stepping(const Stepping&) = delete;
    Stepping& operator=(const Stepping&) = delete;

    template <class Call>
    const std::vector<std::uintptr_t>& through(Call call) {
        on_ = true;
        std::raise(SIGTRAP);
        call();
        on_ = false;
        std::raise(SIGTRAP);
        return addresses_;
    }

private:
    // Changes the trap flag with which the interrupted code goes on: with the flag set, the
    // processor raises the signal again after each instruction.
    static void onTrap(int, siginfo_t*, void* context) {
        greg_t* registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
        const auto at = static_cast<std::uintptr_t>(registers[programCounter]);
        const std::uintptr_t begin = current_->begin_;
        auto& addresses = current_->addresses_;
        if (begin <= at && at < current_->end_) addresses.push_back(at - begin);
        if (current_->on_ && addresses.size() < enough) registers[REG_EFL] |= trapFlag;
        else registers[REG_EFL] &= ~trapFlag;
    }

    static inline Stepping* current_;
    std::uintptr_t begin_, end_;
    std::vector<std::uintptr_t> addresses_;
    bool on_ = false;
    struct sigaction before_;
};

class AlignedPath : public testing::TestWithParam<Transform> {
protected:
    void SetUp() override {
        const Transform& transform = GetParam();
        const int member = transform.function->length;
        function_ = transform.function->name;
        if (registry::hasUnalignedCopy(*transform.family, member, *transform.element))
            copy_ = registry::unalignedName(*transform.family, member, *transform.element);
    }

    // A copy tells by being run, a second path inside the function by the way it moves vectors.
    bool isTakenFor(const void* source, void* destination) const {
        Dl_info library;
        EXPECT_NE(dladdr(kfmgenGetLibVersion(), &library), 0);
        const auto base = reinterpret_cast<std::uintptr_t>(library.dli_fbase);
        const auto function = reinterpret_cast<KfmStatus (*)(const void*, void*, int, void*)>(
            GetParam().function->address);
        Stepping stepping(base, base + codeEnd());
        const auto& addresses =
            stepping.through([&] { function(source, destination, kfmScaleNone, nullptr); });
        EXPECT_TRUE(instructionAt(function_, addresses.at(0)));
        return std::ranges::none_of(addresses, [this](std::uintptr_t address) {
            if (!copy_.empty() && instructionAt(copy_, address)) return true;
            const Instruction* at = instructionAt(function_, address);
            return at && (at->movesUnaligned() || (copy_.empty() && at->movesUpperHalf()));
        });
    }

    std::string function_, copy_;

private:
    static const std::map<std::string, Code>& code() { return disassembly(loadedLibrary().file); }

    static std::uintptr_t codeEnd() {
        std::uintptr_t end = 0;
        for (const auto& [name, instructions] : code())
            end = std::max<std::uintptr_t>(end, instructions.back().address + 1);
        return end;
    }

    static const Instruction* instructionAt(const std::string& function, std::uintptr_t address) {
        const Code& instructions = code().at(function);
        const auto at = std::ranges::lower_bound(instructions, address, {}, &Instruction::address);
        return at != instructions.end() && at->address == address ? &*at : nullptr;
    }
};

// Multiples of 16 that are none of 32 count as aligned as well.
TEST_P(AlignedPath, IsTakenWhereBothPointersAreMultiplesOf16) {
#ifdef __clang__
    GTEST_SKIP() << "clang inlines short copies: no second function is entered";
#endif
    if (loadedLibrary().movesAnywhere())
        GTEST_SKIP() << "vectors move to any address: there is one path";
    GuardedBuffer source(GetParam().sourceBytes() + 64), destination(source.size());
    std::byte *from = source.data(), *to = destination.data();
    for (const int offset : {0, 16}) {
        EXPECT_TRUE(isTakenFor(from, to + offset)) << offset;
        EXPECT_TRUE(isTakenFor(from + offset, from + offset)) << offset;
        EXPECT_FALSE(isTakenFor(from + 8, to + offset)) << offset;
        EXPECT_FALSE(isTakenFor(from + offset, to + 8)) << offset;
    }
    EXPECT_FALSE(isTakenFor(from + 8, from + 8));
    if (copy_.empty()) return;   // without pointers nothing is moved
    EXPECT_TRUE(isTakenFor(nullptr, to));
    EXPECT_TRUE(isTakenFor(from, nullptr));
    EXPECT_FALSE(isTakenFor(nullptr, to + 8));
    EXPECT_FALSE(isTakenFor(from + 8, nullptr));
}

std::vector<Transform> transformsWithTwoPaths() {
    std::vector<Transform> result;
    for (const Transform& transform : fixedTransforms())
        if (registry::testsAlignment(*transform.family, transform.function->length,
                                     *transform.element))
            result.push_back(transform);
    return result;
}

INSTANTIATE_TEST_SUITE_P(, AlignedPath, testing::ValuesIn(transformsWithTwoPaths()), caseName);

}   // namespace
}   // namespace kfm::tests
