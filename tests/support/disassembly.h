// The machine code of a library, function by function, for the tests that look at what the compiler
// made of the sources.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace kfm::tests {

struct Instruction {
    unsigned long address;
    std::string mnemonic;
    std::string operands;

    bool isJump() const { return mnemonic[0] == 'j'; }
    bool isCall() const { return mnemonic.starts_with("call"); }
    // At an address made from registers, which AT&T syntax writes in parentheses.
    bool accessesMemory() const { return operands.find('(') != std::string::npos; }
    // A vector, or its upper half, to or from any address.
    bool movesUnaligned() const {
        return (mnemonic.starts_with("movup") || mnemonic == "movdqu") && accessesMemory();
    }
    bool movesUpperHalf() const { return mnemonic.starts_with("movhp") && accessesMemory(); }
};

using Code = std::vector<Instruction>;

// All functions of a library that is not stripped, by name. Read once.
const std::map<std::string, Code>& disassembly(const std::string& library);

}   // namespace kfm::tests
