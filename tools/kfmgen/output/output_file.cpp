#include "output/output_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "failure.h"

namespace kfm::tool {
namespace {

constexpr std::size_t bufferSize = 1 << 18;

// Follows symbolic links also where they lead to no file yet, which no call of the system does.
std::string linkTarget(std::filesystem::path path) {
    std::error_code error;
    while (std::filesystem::is_symlink(path, error))   // a circle was refused before
        path = path.parent_path() / std::filesystem::read_symlink(path, error);
    return path.string();
}

mode_t defaultMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// A run that is interrupted leaves nothing half-written behind.
char unfinished[4096];

void removeUnfinished(int signal) {
    ::unlink(unfinished);
    ::raise(signal);
}

void guard(const std::string& path) {
    if (path.size() >= sizeof unfinished) return;
    unfinished[path.copy(unfinished, path.size())] = '\0';
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action;
        if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler != SIG_DFL) continue;
        action.sa_handler = removeUnfinished;
        action.sa_flags = SA_RESETHAND | SA_NODEFER;
        ::sigaction(signal, &action, nullptr);
    }
}

}   // namespace

bool showsOnTerminal(const std::string& path) {
    const int number = path == "-" ? STDOUT_FILENO : numberInName(path);
    return number >= 0 && ::isatty(number) != 0;
}

OutputFile::OutputFile(const std::string& path)
    : name_(path == "-" ? "standard output" : displayed(path)),
      buffer_(std::make_unique_for_overwrite<char[]>(bufferSize)), end_(buffer_.get()),
      room_(bufferSize) {
    struct stat old;
    const int number = path == "-" ? STDOUT_FILENO : numberInName(path);
    const bool exists = number < 0 && ::stat(path.c_str(), &old) == 0;
    if (number >= 0) descriptor_ = Descriptor::copyOf(number);
    else if (exists && S_ISDIR(old.st_mode)) fail(EISDIR);
    else if (exists && !S_ISREG(old.st_mode))
        descriptor_ = Descriptor(::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    else if (!exists && (errno != ENOENT || path.empty() || path.back() == '/')) fail(errno);
    else openBeside(linkTarget(path), exists ? &old : nullptr);
    if (!descriptor_) fail(errno);
}

OutputFile::~OutputFile() {
    if (!beside_.empty()) ::unlink(beside_.c_str());
}

void OutputFile::openBeside(const std::string& target, const struct stat* old) {
    if (old && ::access(target.c_str(), W_OK) != 0) fail(errno);
    target_ = target;
    std::string beside = (std::filesystem::path(target).parent_path() / ".kfmgen-XXXXXX").string();
    descriptor_ = Descriptor(::mkostemp(beside.data(), O_CLOEXEC));
    if (!descriptor_) return;
    beside_ = beside;
    guard(beside_);
    // Another owner is kept where that is allowed.
    if (old && ::fchown(descriptor_.number(), old->st_uid, old->st_gid) != 0) errno = 0;
    ::fchmod(descriptor_.number(), old ? old->st_mode & 07777 : defaultMode());
}

void OutputFile::complete() {
    flush();
    if (const int error = descriptor_.close()) fail(error);
    if (beside_.empty()) return;
    if (::rename(beside_.c_str(), target_.c_str()) != 0) fail(errno);
    beside_.clear();
    unfinished[0] = '\0';
}

void OutputFile::makeRoom(std::size_t size) {
    flush();
    if (size <= room_) return;
    buffer_ = std::make_unique_for_overwrite<char[]>(size);
    end_ = buffer_.get();
    room_ = size;
}

void OutputFile::flush() {
    const char* from = buffer_.get();
    while (from != end_) {
        const ssize_t count = ::write(descriptor_.number(), from, end_ - from);
        if (count < 0 && errno != EINTR) fail(errno);
        from += std::max<ssize_t>(count, 0);
    }
    room_ += end_ - buffer_.get();
    end_ = buffer_.get();
}

void OutputFile::fail(int error) const {
    throw OutputError(name_ + ": cannot be written: " + reason(error));
}

}   // namespace kfm::tool
