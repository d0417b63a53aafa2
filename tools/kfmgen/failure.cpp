#include "failure.h"

#include <array>
#include <cerrno>
#include <cstring>

namespace kfm::tool {
namespace {

constexpr std::array<std::string_view, 5> statusMeanings = {
    "done",
    "not enough memory, or a fault of this program",
    "the command line is wrong",
    "the input cannot be read, or holds what the command cannot take",
    "the output cannot be written",
};

bool continuesCharacter(char byte) { return (byte & 0xC0) == 0x80; }   // of UTF-8

// The beginning and the end of a text that is longer than `most`.
std::string shortened(std::string_view text, std::size_t most) {
    if (text.size() <= most) return std::string(text);
    std::size_t front = most / 2;
    std::size_t back = text.size() - most / 2;
    while (front > 0 && continuesCharacter(text[front])) --front;
    while (back < text.size() && continuesCharacter(text[back])) ++back;
    return std::string(text.substr(0, front)) + "..." + std::string(text.substr(back));
}

}   // namespace

std::string exitStatusHelp() {
    std::string text = "Exit status:\n";
    for (std::size_t status = 0; status < statusMeanings.size(); ++status)
        text += "  " + std::to_string(status) + "  " + std::string(statusMeanings[status]) + "\n";
    return text;
}

std::string reason(int error) {
    switch (error) {
    case ENOENT: return "there is no such file or folder";
    case ENOTDIR: return "a part of the path is no folder";
    case EISDIR: return "it is a folder";
    case EACCES:
    case EPERM: return "permission denied";
    case ELOOP: return "its symbolic links lead in a circle";
    case ENAMETOOLONG: return "the name is too long";
    case EIO: return "the device reports an error";
    case ENOSPC:
    case EDQUOT: return "no space is left";
    case EFBIG: return "the file would be larger than allowed";
    case EROFS: return "the file system is read-only";
    case EPIPE: return "nobody reads it";
    case EBADF: return "it is closed";
    case EMFILE:
    case ENFILE: return "too many files are open";
    default: return std::strerror(error);
    }
}

std::string displayed(const std::string& path) {
    return path.empty() ? "''" : shortened(path, 200);
}

std::string inQuotes(std::string_view words) { return "'" + shortened(words, 40) + "'"; }

std::string oneLine(std::string_view message) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const char c : shortened(message, 600)) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n') text += ' ';
        else if (byte < 0x20 || byte == 0x7F)
            text += {'\\', 'x', digits[byte / 16], digits[byte % 16]};
        else text += c;
    }
    return text;
}

}   // namespace kfm::tool
