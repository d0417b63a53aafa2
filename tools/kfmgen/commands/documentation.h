// The manual page and the completions of shells, made of the same options as the help.
#pragma once

#include <CLI/CLI.hpp>
#include <ostream>
#include <string>

namespace kfm::tool {

void printManual(const CLI::App& app, const std::string& version, std::ostream& out);
void printBashCompletion(const CLI::App& app, std::ostream& out);
void printZshCompletion(const CLI::App& app, std::ostream& out);

}   // namespace kfm::tool
