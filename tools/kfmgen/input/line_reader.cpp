#include "input/line_reader.h"

#include <algorithm>
#include <cstring>

#include "failure.h"

namespace kfm::tool {
namespace {

constexpr std::size_t longestLine = 1 << 16;

}   // namespace

LineReader::LineReader(InputFile& file) : file_(file), buffer_(2 * longestLine) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    while (end_ < mark.size() && refill()) continue;
    if (std::string_view(buffer_.data(), end_).starts_with(mark)) begin_ = mark.size();
}

std::optional<std::string_view> LineReader::next() {
    std::size_t length = 0;   // as far as no end was found
    for (;;) {
        const char* from = buffer_.data() + begin_;
        const void* newline = std::memchr(from + length, '\n', end_ - begin_ - length);
        length = newline ? static_cast<const char*>(newline) - from : end_ - begin_;
        if (newline || length > longestLine || !refill()) break;
    }
    if (length == 0 && begin_ == end_) return std::nullopt;
    ++number_;
    if (length > longestLine)
        throw InputError(place() + ": more than " + std::to_string(longestLine) +
                         " characters in a line");
    line_ = std::string_view(buffer_.data() + begin_, length);
    begin_ = std::min(end_, begin_ + length + 1);
    return line_;
}

bool LineReader::refill() {
    if (end_ == buffer_.size()) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= begin_;
        begin_ = 0;
    }
    const std::size_t count = file_.readSome(std::span(buffer_).subspan(end_));
    if (file_.error() != 0)
        throw InputError(file_.name() + ":" + std::to_string(number_ + 1) +
                         ": cannot be read on: " + reason(file_.error()));
    end_ += count;
    return count > 0;
}

std::string LineReader::place() const { return file_.name() + ":" + std::to_string(number_); }

std::string LineReader::place(std::string_view part) const {
    return place() + ":" + std::to_string(part.data() - line_.data() + 1);
}

}   // namespace kfm::tool
