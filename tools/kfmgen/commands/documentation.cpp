#include "commands/documentation.h"

#include <algorithm>
#include <sstream>

#include "commands/option_table.h"
#include "commands/options.h"
#include "failure.h"

namespace kfm::tool {
namespace {

std::string joined(const std::vector<std::string>& parts, const std::string& between) {
    std::string text;
    for (const std::string& part : parts) text += (text.empty() ? "" : between) + part;
    return text;
}

// Dashes that are typed, and no line that begins as a command of the formatter does.
std::string roff(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '\\') escaped += "\\e";
        else if (c == '-') escaped += "\\-";
        else escaped += c;
    }
    std::istringstream lines(folded(escaped, 76));
    std::string page;
    for (std::string line; std::getline(lines, line);) {
        const bool command = line.starts_with('.') || line.starts_with('\'');
        page += (page.empty() ? "" : "\n") + std::string(command ? "\\&" : "") + line;
    }
    return page;
}

void printRows(const CLI::App& command, std::ostream& out) {
    for (const OptionRow& row : optionsOf(command)) {
        out << ".TP\n";
        if (!row.names.empty()) out << "\\fB" << roff(joined(row.names, ", ")) << "\\fR";
        if (!row.value.empty())
            out << (row.names.empty() ? "" : " ") << "\\fI" << roff(row.value) << "\\fR";
        out << '\n' << roff(row.help) << '\n';
    }
}

// What a shell takes as one word, whatever is in it.
std::string shellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? "'\\''" : std::string(1, c);
    return quoted + "'";
}

std::string zshRow(const OptionRow& row) {
    std::string help;
    for (const char c : row.help) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') help += '\\';
        help += c;
    }
    std::string action;
    if (!row.value.empty())
        action = ":" + std::string(row.words.empty() ? "value" : "word") + ":" +
                 (row.file             ? "_files"
                  : !row.words.empty() ? "(" + joined(row.words, " ") + ")"
                                       : "");
    if (row.names.empty()) return shellQuoted("::file:_files");
    if (row.names.size() == 1) return shellQuoted(row.names[0] + "[" + help + "]" + action);
    return shellQuoted("(" + joined(row.names, " ") + ")") + "{" + joined(row.names, ",") + "}" +
           shellQuoted("[" + help + "]" + action);
}

std::vector<std::string> names(const std::vector<const CLI::App*>& commands) {
    std::vector<std::string> names;
    for (const CLI::App* command : commands) names.push_back(command->get_name());
    return names;
}

bool takesFile(const CLI::App& command) {
    const std::vector<OptionRow> rows = optionsOf(command);
    return std::ranges::any_of(rows, [](const OptionRow& row) { return row.names.empty(); });
}

void printBashCases(const CLI::App& command, std::ostream& out) {
    std::vector<std::string> all, files;
    out << "    " << command.get_name() << ")\n        case $previous in\n";
    for (const OptionRow& row : optionsOf(command)) {
        all.insert(all.end(), row.names.begin(), row.names.end());
        if (row.names.empty() || row.value.empty()) continue;
        out << "        " << joined(row.names, "|") << ") ";
        if (row.file) out << "COMPREPLY=($(compgen -f -- \"$word\")); return ;;\n";
        else
            out << "COMPREPLY=($(compgen -W \"" << joined(row.words, " ")
                << "\" -- \"$word\")); return ;;\n";
    }
    out << "        esac\n        options=\"" << joined(all, " ") << "\" ;;\n";
}

}   // namespace

void printManual(const CLI::App& app, const std::string& version, std::ostream& out) {
    out << ".\\\" Made of the options of the program.\n"
        << ".TH KFMGEN 1 \"\" \"" << version << "\" \"User Commands\"\n"
        << ".SH NAME\nkfmgen \\- " << roff(app.get_description()) << "\n.SH SYNOPSIS\n";
    for (const CLI::App* command : commandsOf(app))
        out << (command == commandsOf(app).front() ? "" : ".br\n") << ".B kfmgen "
            << command->get_name() << "\n.RI [ options ]"
            << (takesFile(*command) ? " \" \" [ file ]" : "") << '\n';
    out << ".SH DESCRIPTION\nReads a sound or a text with a sample per line, and writes what "
           "becomes of it.\n.SH OPTIONS\n";
    printRows(app, out);
    for (const CLI::App* command : commandsOf(app)) {
        out << ".SH \"" << command->get_name() << "\"\n"
            << roff(command->get_description()) << ".\n";
        printRows(*command, out);
    }
    out << ".SH \"EXIT STATUS\"\n";
    std::istringstream lines(exitStatusHelp());
    std::string line;
    std::getline(lines, line);   // the heading
    while (std::getline(lines, line))
        out << ".TP\n" << line[2] << '\n' << roff(line.substr(5)) << '\n';
}

void printBashCompletion(const CLI::App& app, std::ostream& out) {
    out << "# Completion of kfmgen for bash, made of the options of the program.\n"
           "_kfmgen() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} options\n"
           "    COMPREPLY=()\n"
           "    compopt -o filenames 2>/dev/null\n"
           "    if ((COMP_CWORD == 1)); then\n        COMPREPLY=($(compgen -W \""
        << joined(names(commandsOf(app)), " ") << " --help --version\" -- \"$word\"))\n"
        << "        return\n    fi\n    case ${COMP_WORDS[1]} in\n";
    for (const CLI::App* command : commandsOf(app)) printBashCases(*command, out);
    out << "    esac\n    if [[ $word == -* ]]; then\n"
           "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n    else\n"
           "        COMPREPLY=($(compgen -f -- \"$word\"))\n    fi\n}\n"
           "complete -F _kfmgen kfmgen\n";
}

void printZshCompletion(const CLI::App& app, std::ostream& out) {
    out << "#compdef kfmgen\n# Made of the options of the program.\n"
           "if ((CURRENT == 2)); then\n    local -a commands=(\n";
    for (const CLI::App* command : commandsOf(app))
        out << "        " << shellQuoted(command->get_name() + ":" + command->get_description())
            << '\n';
    out << "    )\n    _describe command commands\n    return\nfi\n"
           "local command=$words[2]\nshift words\n((CURRENT--))\ncase $command in\n";
    for (const CLI::App* command : commandsOf(app)) {
        out << command->get_name() << ")\n    _arguments";
        for (const OptionRow& row : optionsOf(*command)) out << " \\\n        " << zshRow(row);
        out << " ;;\n";
    }
    out << "esac\n";
}

}   // namespace kfm::tool
