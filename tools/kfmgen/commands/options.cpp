#include "commands/options.h"

#include <limits>
#include <sstream>

#include "numbers.h"

namespace kfm::tool {
namespace {

template <class Number>
Number inRange(const std::string& name, const std::string& text, Parsed<Number> parsed,
               Number least, Number most) {
    if (parsed.trouble) throw UsageError(name + ": " + inQuotes(text) + " " + parsed.trouble);
    if (least <= parsed.value && parsed.value <= most) return parsed.value;
    std::ostringstream range;
    range << name << ": " << inQuotes(text) << " is not from " << least << " to " << most;
    throw UsageError(range.str());
}

Channels channelsNamed(const std::string& name, const std::string& word) {
    if (word == "mix") return {Channels::Use::mix};
    const auto number = inRange<std::int64_t>(name, word, wholeNumber(word), 1, 1 << 20);
    return {Channels::Use::one, static_cast<int>(number)};
}

}   // namespace

std::string folded(const std::string& text, std::size_t width) {
    std::istringstream words(text);
    std::string result, line;
    for (std::string word; words >> word;) {
        if (!line.empty() && line.size() + 1 + word.size() > width) {
            result += line + '\n';
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    return result + line;
}

CLI::Option* addNumber(CLI::App& command, const std::string& name, int& value, int least, int most,
                       const std::string& help) {
    const auto read = [=, &value](const std::string& text) {
        value = static_cast<int>(inRange<std::int64_t>(name, text, wholeNumber(text), least, most));
    };
    return command.add_option_function<std::string>(name, read, help)->type_name("NUMBER");
}

CLI::Option* addNumber(CLI::App& command, const std::string& name, double& value, double least,
                       double most, const std::string& help) {
    const auto read = [=, &value](const std::string& text) {
        value = inRange(name, text, realNumber(text), least, most);
    };
    return command.add_option_function<std::string>(name, read, help)->type_name("NUMBER");
}

void addInput(CLI::App& command, InputOptions& input, const std::string& help) {
    command.add_option("input", input.path, help)->type_name("FILE");
    const std::string name = "--channel";
    const auto choose = [&input, name](const std::string& word) {
        input.channels = channelsNamed(name, word);
    };
    CLI::Option* channel =
        command
            .add_option_function<std::string>(
                name, choose,
                "of several channels or columns the one of this number, from 1 on, "
                "or the mean of all: mix")
            ->type_name("NUMBER|mix");
    command
        .add_flag_callback(
            "--complex", [&input] { input.channels = {Channels::Use::complex}; },
            "two channels or columns are real and imaginary part")
        ->excludes(channel);

    std::map<std::string, std::string> encodings;
    std::string list;
    for (const std::string& encoding : rawEncodings()) {
        encodings[encoding] = encoding;
        list += " " + encoding;
    }
    CLI::Option* raw =
        addChoice<std::string>(command, "--raw", input.raw.encoding, encodings,
                               "the input is sound without a header, encoded as" + list)
            ->type_name("ENCODING");
    addNumber(command, "--raw-channels", input.raw.channels, 1, 1024, "1 if not given")->needs(raw);
    addNumber(command, "--raw-rate", input.raw.rate, 1, std::numeric_limits<int>::max(),
              "samples per second, 44100 if not given")
        ->needs(raw);
}

void foldHelp(CLI::App& command) {
    const std::size_t left = command.get_formatter()->get_column_width();
    for (CLI::Option* option : command.get_options())
        option->description(folded(option->get_description(), 79 - left));
}

}   // namespace kfm::tool
