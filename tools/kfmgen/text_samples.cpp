#include "text_samples.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace kfm::tool {
namespace {

using Fields = std::vector<std::string_view>;

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

// Fields are separated by one comma or semicolon, or by white space where there is neither.
Fields split(std::string_view line) {
    const bool marked = line.find_first_of(",;") != std::string_view::npos;
    const std::string_view separators = marked ? ",;" : blanks;
    Fields fields;
    for (;;) {
        const std::size_t end = line.find_first_of(separators);
        fields.push_back(trimmed(line.substr(0, end)));
        if (end == std::string_view::npos) return fields;
        line.remove_prefix(end + 1);
        if (!marked) line = trimmed(line);
    }
}

class TextReader {
public:
    explicit TextReader(const std::string& name) : name_(name) {}

    void addLine(std::string_view line) {
        ++lineNumber_;
        line = trimmed(line);
        if (line.empty() || line.front() == '#') return;
        const Fields fields = split(line);
        if (columns_ == 0) {
            columns_ = fields.size();
            if (readHeader(fields)) return;
            if (columns_ > 2)
                fail(std::to_string(columns_) + " columns without names; one (real) or two "
                                                "(real, imaginary) are expected");
            imaginary_ = columns_ - 1;
        }
        if (fields.size() != columns_)
            fail("expected as many columns as before, " + std::to_string(columns_) + ", not " +
                 std::to_string(fields.size()));
        samples_.emplace_back(number(fields[real_]),
                              imaginary_ == real_ ? 0.0 : number(fields[imaginary_]));
    }

    Samples take() { return std::move(samples_); }

private:
    bool readHeader(const Fields& fields) {
        auto re = std::ranges::find(fields, "re");
        if (re == fields.end()) re = std::ranges::find(fields, "value");
        if (re == fields.end()) return false;
        const auto im = std::ranges::find(fields, "im");
        real_ = re - fields.begin();
        imaginary_ = im == fields.end() ? real_ : im - fields.begin();
        return true;
    }

    double number(std::string_view field) const {
        std::string_view digits = field;
        if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
        double value = 0;
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value);
        if (error == std::errc::result_out_of_range)
            fail("'" + std::string(field) + "' is out of range");
        if (error != std::errc() || end != digits.end() || !std::isfinite(value))
            fail("'" + std::string(field) + "' is not a number");
        return value;
    }

    [[noreturn]] void fail(const std::string& reason) const {
        throw InputError(name_ + ", line " + std::to_string(lineNumber_) + ": " + reason);
    }

    std::string name_;
    int lineNumber_ = 0;
    std::size_t columns_ = 0;   // 0 until the first line that counts
    std::size_t real_ = 0;
    std::size_t imaginary_ = 0;   // the same as real_ when there is no imaginary part
    Samples samples_;
};

}   // namespace

Samples readText(std::istream& text, const std::string& name) {
    TextReader reader(name);
    for (std::string line; std::getline(text, line);) reader.addLine(line);
    return reader.take();
}

}   // namespace kfm::tool
