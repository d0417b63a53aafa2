#include "commands/option_table.h"

#include <sstream>

namespace kfm::tool {
namespace {

std::string onOneLine(const std::string& text) {
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
    return line;
}

std::vector<std::string> split(const std::string& text, char mark) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, mark);) parts.push_back(part);
    return parts;
}

// Words are in small letters, what stands for other values in capitals.
std::vector<std::string> wordsOf(const std::string& value) {
    std::vector<std::string> words;
    if (value.find('|') == value.npos) return words;
    for (const std::string& word : split(value, '|'))
        if (word.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == word.npos) words.push_back(word);
    return words;
}

}   // namespace

std::vector<OptionRow> optionsOf(const CLI::App& command) {
    std::vector<OptionRow> rows;
    for (const CLI::Option* option : command.get_options()) {
        OptionRow row;
        for (const std::string& name : option->get_snames()) row.names.push_back("-" + name);
        for (const std::string& name : option->get_lnames()) row.names.push_back("--" + name);
        if (option->get_items_expected_max() > 0) row.value = option->get_type_name();
        row.words = wordsOf(row.value);
        row.help = onOneLine(option->get_description());
        row.file = row.value == "FILE";
        rows.push_back(row);
    }
    return rows;
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
    std::vector<const CLI::App*> commands;
    for (const CLI::App* command : app.get_subcommands(nullptr))
        if (!command->get_group().empty()) commands.push_back(command);
    return commands;
}

}   // namespace kfm::tool
