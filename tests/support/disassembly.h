// The machine code of a library, function by function, for the tests that look at what the compiler
// made of the sources.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kfm::tests {

struct Instruction {
    unsigned long address;
    std::string mnemonic;
    std::string operands;

    bool uses(const char* registers) const { return operands.find(registers) != std::string::npos; }
    bool returns() const { return mnemonic.starts_with("ret"); }
#ifdef __aarch64__
    bool isJump() const {
        return mnemonic == "b" || mnemonic == "br" || mnemonic.starts_with("b.") ||
               mnemonic.starts_with("cb") || mnemonic == "tbz" || mnemonic == "tbnz";
    }
    bool isCall() const { return mnemonic == "bl" || mnemonic == "blr"; }
    bool leaves() const { return returns() || mnemonic == "b" || mnemonic == "br"; }
    bool jumpsToRegister() const { return mnemonic == "br"; }
    bool converts() const { return mnemonic.starts_with("fcvt"); }
    bool computesWide() const {
        return mnemonic[0] == 'f' && mnemonic != "fmov" && (operands[0] == 'd' || uses(".2d"));
    }
#else
    bool isJump() const { return mnemonic[0] == 'j'; }
    bool isCall() const { return mnemonic.starts_with("call"); }
    bool leaves() const { return returns() || mnemonic.starts_with("jmp"); }
    bool jumpsToRegister() const { return isJump() && uses("*"); }
    bool converts() const { return stem().starts_with("cvt"); }
    bool computesWide() const {
        const std::string_view what = stem().substr(0, 3);
        const bool computes = what == "add" || what == "sub" || what == "mul" || what == "div";
        return computes && (mnemonic.ends_with("sd") || mnemonic.ends_with("pd"));
    }
    // At an address made from registers, which AT&T syntax writes in parentheses.
    bool accessesMemory() const { return operands.find('(') != std::string::npos; }
    // Without the prefix of the encoding that newer processors know.
    std::string_view stem() const {
        const bool isNew = mnemonic.starts_with('v');
        return std::string_view(mnemonic).substr(isNew ? 1 : 0);
    }
    // A vector of 16 bytes, or its upper half, to or from any address. Wider ones have no other
    // way.
    bool movesUnaligned() const {
        return (stem().starts_with("movup") || stem() == "movdqu") && accessesMemory() &&
               !uses("%ymm");
    }
    bool movesUpperHalf() const { return stem().starts_with("movhp") && accessesMemory(); }
#endif
};

using Code = std::vector<Instruction>;

// All functions of a library that is not stripped, by name. Read once.
const std::map<std::string, Code>& disassembly(const std::string& library);

}   // namespace kfm::tests
