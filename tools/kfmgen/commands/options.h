// Options of the commands, read in one way: numbers are decimal and in range, words are checked.
#pragma once

#include <CLI/CLI.hpp>
#include <map>
#include <string>

#include "input/sample_source.h"

namespace kfm::tool {

// An option whose value is a whole number.
CLI::Option* addNumber(CLI::App& command, const std::string& name, int& value, int least, int most,
                       const std::string& help);

// An option whose value is a finite number.
CLI::Option* addNumber(CLI::App& command, const std::string& name, double& value, double least,
                       double most, const std::string& help);

// An option whose value is one of a few words.
template <class Value, class Variable>
CLI::Option* addChoice(CLI::App& command, const std::string& name, Variable& value,
                       const std::map<std::string, Value>& words, const std::string& help) {
    std::string list;
    for (const auto& [word, meaning] : words) list += (list.empty() ? "" : "|") + word;
    const auto choose = [&value, words, list](const std::string& word) {
        const auto found = words.find(word);
        if (found == words.end()) throw UsageError(inQuotes(word) + " is none of " + list);
        value = found->second;
    };
    return command.add_option_function<std::string>(name, choose, help)->type_name(list);
}

// The options that say what is read and how; `help` is that of the file.
void addInput(CLI::App& command, InputOptions& input, const std::string& help);

// The words in lines of at most so many characters.
std::string folded(const std::string& text, std::size_t width);

// Breaks what the options say of themselves into lines for a terminal of 80 columns.
void foldHelp(CLI::App& command);

}   // namespace kfm::tool
