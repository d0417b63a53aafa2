// What ends a command before its time: one line that says why, and the exit status it means.
#pragma once

#include <stdexcept>
#include <string>

namespace kfm::tool {

// The only list of exit statuses; exitStatusHelp() says them in words.
enum class ExitStatus {
    done = 0,
    tool = 1,     // no memory, or a fault of the tool itself
    usage = 2,    // the command line
    input = 3,    // what was to be read: missing, unreadable, or no samples for this transform
    output = 4,   // what was to be written
};

// The message begins with the file it is about: "FILE:LINE:COLUMN: what" in a text.
struct Failure : std::runtime_error {
    Failure(ExitStatus status, const std::string& message)
        : std::runtime_error(message), status(status) {}
    ExitStatus status;
};

struct UsageError : Failure {
    explicit UsageError(const std::string& message) : Failure(ExitStatus::usage, message) {}
};
struct InputError : Failure {
    explicit InputError(const std::string& message) : Failure(ExitStatus::input, message) {}
};
struct OutputError : Failure {
    explicit OutputError(const std::string& message) : Failure(ExitStatus::output, message) {}
};

std::string exitStatusHelp();

// What an errno means, for the end of a message.
std::string reason(int error);

// Text of the user's in quotation marks, cut when it is long.
std::string quoted(std::string_view text);

// The message as one line of a terminal: control characters are spelled, long ones cut.
std::string line(std::string_view message);

}   // namespace kfm::tool
