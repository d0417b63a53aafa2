// Output of a program, for the tests that look at the built library with the binary utilities.
#pragma once

#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kfm::tests {

// Hands every line of the command's output to `take`; throws when the command fails.
inline void forEachLine(const std::string& command,
                        const std::function<void(std::string_view)>& take) {
    FILE* pipe = popen(("LC_ALL=C " + command).c_str(), "r");
    if (!pipe) throw std::runtime_error("cannot run " + command);
    std::string line;
    for (int c = std::getc(pipe); c != EOF; c = std::getc(pipe)) {
        if (c != '\n') {
            line.push_back(static_cast<char>(c));
            continue;
        }
        take(line);
        line.clear();
    }
    if (pclose(pipe) != 0) throw std::runtime_error("failed: " + command);
}

inline std::vector<std::string> linesOf(const std::string& command) {
    std::vector<std::string> lines;
    forEachLine(command, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

}   // namespace kfm::tests
