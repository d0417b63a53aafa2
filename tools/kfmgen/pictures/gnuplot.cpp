#include "pictures/gnuplot.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <sstream>

#include "descriptor.h"
#include "failure.h"

namespace kfm::tool {
namespace {

std::string found(const std::string& program) {
    const char* folders = std::getenv("PATH");
    std::istringstream list(folders ? folders : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(list, folder, ':');) {
        const std::string path = folder + "/" + program;
        if (::access(path.c_str(), X_OK) == 0) return path;
    }
    return {};
}

// A file in memory; as standard stream of another program no pipe, which might fill up.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view content = {})
        : descriptor_(::memfd_create("kfmgen", MFD_CLOEXEC)) {
        while (!content.empty()) {
            const ssize_t count = ::write(number(), content.data(), content.size());
            if (count < 0 && errno != EINTR) throw std::bad_alloc();
            content.remove_prefix(std::max<ssize_t>(count, 0));
        }
        ::lseek(number(), 0, SEEK_SET);
    }

    int number() const { return descriptor_.number(); }

    std::string content() const {
        std::string content(std::max<off_t>(0, ::lseek(number(), 0, SEEK_END)), '\0');
        for (std::size_t done = 0; done < content.size();) {
            const ssize_t count =
                ::pread(number(), content.data() + done, content.size() - done, done);
            if (count <= 0) throw std::bad_alloc();
            done += count;
        }
        return content;
    }

private:
    Descriptor descriptor_;
};

// The exit status, or the negative errno of what kept the program from running.
int run(const std::string& program, const MemoryFile (&streams)[3]) {
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::posix_spawn_file_actions_adddup2(&actions, streams[stream].number(), stream);
    // No settings of the user's own.
    const char* const arguments[] = {program.c_str(), "--default-settings", "-", nullptr};
    pid_t child;
    const int error = ::posix_spawn(&child, program.c_str(), &actions, nullptr,
                                    const_cast<char**>(arguments), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) return -error;
    int status;
    while (::waitpid(child, &status, 0) < 0)
        if (errno != EINTR) return -errno;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// What gnuplot says of an error is below the script's line and a mark under it.
std::string lastLine(const std::string& text) {
    std::string last;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.find_first_not_of(" \t\r") != std::string::npos) last = line;
    return last.substr(std::min(last.size(), last.find_first_not_of(" \t")));
}

}   // namespace

Gnuplot::Gnuplot(std::string picture) : picture_(std::move(picture)), program_(found("gnuplot")) {
    if (program_.empty()) fail("gnuplot is not installed (Debian: gnuplot-nox)");
}

std::string Gnuplot::draw(std::string_view script) const {
    const MemoryFile streams[] = {MemoryFile(script), MemoryFile(), MemoryFile()};
    const int status = run(program_, streams);
    if (status < 0) fail("gnuplot cannot be run: " + reason(-status));
    const std::string words = lastLine(streams[STDERR_FILENO].content());
    if (status != 0)
        fail("gnuplot ended with status " + std::to_string(status) +
             (words.empty() ? "" : ": " + words));
    std::string picture = streams[STDOUT_FILENO].content();
    if (picture.empty()) fail("gnuplot drew nothing" + (words.empty() ? "" : ": " + words));
    return picture;
}

void Gnuplot::fail(const std::string& what) const {
    throw OutputError(picture_ + ": cannot be drawn: " + what);
}

std::string scriptText(std::string_view text) {
    std::string quoted = "'";
    for (const char c : oneLine(text)) quoted += c == '\'' ? std::string("''") : std::string(1, c);
    return quoted + "'";
}

}   // namespace kfm::tool
