#include "descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <string_view>

namespace kfm::tool {

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

// Above the standard ones, whose numbers mean something to others.
Descriptor Descriptor::copyOf(int number) {
    return Descriptor(::fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

int Descriptor::close() {
    const int number = std::exchange(number_, -1);
    return number >= 0 && ::close(number) != 0 ? errno : 0;
}

int numberInName(const std::string& path) {
    if (path == "/dev/stdin") return STDIN_FILENO;
    if (path == "/dev/stdout") return STDOUT_FILENO;
    if (path == "/dev/stderr") return STDERR_FILENO;
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        if (!path.starts_with(folder)) continue;
        int number = -1;
        const char* end = path.data() + path.size();
        const auto result = std::from_chars(path.data() + folder.size(), end, number);
        if (result.ec == std::errc() && result.ptr == end && number >= 0) return number;
    }
    return -1;
}

void occupyStandardDescriptors() {
    // Opened the wrong way round: using them still fails.
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(number, F_GETFD) < 0)
            ::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

}   // namespace kfm::tool
