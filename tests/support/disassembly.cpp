// Parses the output of objdump.
#include "support/disassembly.h"

#include <algorithm>
#include <sstream>

#include "support/command.h"

namespace kfm::tests {
namespace {

// "    1139:\tmovaps (%rdi),%xmm0"
Instruction parse(std::string_view line) {
    const std::size_t colon = line.find(':');
    const std::size_t text = std::min(colon + 2, line.size());
    std::istringstream words{std::string(line.substr(text))};
    Instruction result{std::stoul(std::string(line.substr(0, colon)), nullptr, 16), "", ""};
    words >> result.mnemonic;
    while (result.mnemonic == "bnd" || result.mnemonic == "notrack" || result.mnemonic == "data16")
        words >> result.mnemonic;
    std::getline(words >> std::ws, result.operands);
    return result;
}

std::map<std::string, Code> read(const std::string& library) {
    std::map<std::string, Code> functions;
    Code* current = nullptr;
    forEachLine(KFM_OBJDUMP " -d --no-show-raw-insn '" + library + "'", [&](std::string_view line) {
        if (line.ends_with(">:")) {
            const std::size_t open = line.find('<');
            current = &functions[std::string(line.substr(open + 1, line.size() - open - 3))];
        } else if (current && line.starts_with(' ')) {
            current->push_back(parse(line));
        }
    });
    return functions;
}

}   // namespace

const std::map<std::string, Code>& disassembly(const std::string& library) {
    static std::map<std::string, std::map<std::string, Code>> libraries;
    const auto [found, isNew] = libraries.try_emplace(library);
    if (isNew) found->second = read(library);
    return found->second;
}

}   // namespace kfm::tests
