#include "input/input_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "failure.h"

namespace kfm::tool {
namespace {

// More than any header with its pictures takes.
constexpr std::size_t keptMost = 8 << 20;

Descriptor opened(const std::string& path) {
    const int number = path == "-" ? STDIN_FILENO : numberInName(path);
    if (number >= 0) return Descriptor::copyOf(number);
    return Descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
}

}   // namespace

InputFile::InputFile(const std::string& path)
    : name_(path == "-" ? "standard input" : displayed(path)), descriptor_(opened(path)) {
    struct stat status;
    if (!descriptor_ || ::fstat(descriptor_.number(), &status) != 0)
        throw InputError(name_ + ": cannot be opened: " + reason(errno));
    if (S_ISDIR(status.st_mode)) throw InputError(name_ + ": cannot be read: " + reason(EISDIR));
    seekable_ = S_ISREG(status.st_mode);
    if (seekable_) origin_ = ::lseek(descriptor_.number(), 0, SEEK_CUR);
}

std::optional<std::uint64_t> InputFile::size() const {
    struct stat status;
    if (!seekable_ || ::fstat(descriptor_.number(), &status) != 0) return std::nullopt;
    return std::max<off_t>(status.st_size - origin_, 0);
}

std::optional<double> InputFile::shareRead() const {
    const std::optional<std::uint64_t> all = size();
    if (!all || *all == 0) return std::nullopt;
    return std::min(1.0, static_cast<double>(position_) / static_cast<double>(*all));
}

bool InputFile::terminal() const { return ::isatty(descriptor_.number()) != 0; }

std::size_t InputFile::readSome(std::span<char> bytes) {
    if (error_ != 0 || bytes.empty()) return 0;
    const std::size_t count = seekable_ ? readFile(bytes) : readKept(bytes);
    position_ += count;
    return count;
}

std::size_t InputFile::read(std::span<char> bytes) {
    std::size_t count = 0;
    while (const std::size_t more = readSome(bytes.subspan(count))) count += more;
    return count;
}

std::size_t InputFile::readDescriptor(std::span<char> bytes) {
    ssize_t count;
    do count = ::read(descriptor_.number(), bytes.data(), bytes.size());
    while (count < 0 && errno == EINTR);
    if (count < 0) error_ = errno;
    arrived_ += std::max<ssize_t>(count, 0);
    return std::max<ssize_t>(count, 0);
}

std::size_t InputFile::readFile(std::span<char> bytes) {
    if (position_ != arrived_) {
        if (::lseek(descriptor_.number(), origin_ + position_, SEEK_SET) < 0) return 0;
        arrived_ = position_;
    }
    return readDescriptor(bytes);
}

std::size_t InputFile::readKept(std::span<char> bytes) {
    if (keeps_ && position_ < keptMost && !keepUntil(position_ + 1)) return 0;
    if (position_ < kept_.size()) {
        const std::size_t count = std::min<std::size_t>(bytes.size(), kept_.size() - position_);
        std::copy_n(kept_.begin() + position_, count, bytes.begin());
        return count;
    }
    if (keeps_ || position_ != arrived_) return 0;
    kept_ = {};
    return readDescriptor(bytes);
}

// False when the pipe ends before.
bool InputFile::keepUntil(std::uint64_t end) {
    while (kept_.size() < end) {
        constexpr std::size_t step = 4096;
        const std::size_t size = kept_.size();
        kept_.resize(size + step);
        kept_.resize(size + readDescriptor(std::span(kept_).subspan(size)));
        if (kept_.size() == size) return false;
    }
    return true;
}

}   // namespace kfm::tool
