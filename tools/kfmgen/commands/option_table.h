// The commands and options of the program as documentation wants to see them.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace kfm::tool {

struct OptionRow {
    std::vector<std::string> names;   // with dashes; none for what is no option
    std::string value;                // what it takes; empty for a flag
    std::vector<std::string> words;   // the only values, where there are few
    std::string help;                 // on one line
    bool file;                        // the value is one
};

std::vector<OptionRow> optionsOf(const CLI::App& command);

// Without those that are hidden.
std::vector<const CLI::App*> commandsOf(const CLI::App& app);

}   // namespace kfm::tool
