// What ends a command before its time: the exit status and one line that says why.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace kfm::tool {

// The only list of exit statuses; exitStatusHelp() says them in words.
enum class ExitStatus { done, tool, usage, input, output };

std::string exitStatusHelp();

// The message begins with the file it is about: "FILE:LINE:COLUMN: what" in a text.
struct Failure : std::runtime_error {
    Failure(ExitStatus status, const std::string& message)
        : std::runtime_error(message), status(status) {}
    ExitStatus status;
};

template <ExitStatus Status>
struct FailureOf : Failure {
    explicit FailureOf(const std::string& message) : Failure(Status, message) {}
};
using UsageError = FailureOf<ExitStatus::usage>;
using InputError = FailureOf<ExitStatus::input>;
using OutputError = FailureOf<ExitStatus::output>;

// What an errno means, for the end of a message.
std::string reason(int error);

// How messages call the file of this name.
std::string displayed(const std::string& path);

// Words of the user in quotation marks, cut when they are long.
std::string inQuotes(std::string_view words);

// The message as one line that no terminal takes for commands, cut when it is long.
std::string oneLine(std::string_view message);

}   // namespace kfm::tool
