// gnuplot as the artist of pictures: a program that takes a script with the data in it.
#pragma once

#include <string>
#include <string_view>

namespace kfm::tool {

class Gnuplot {
public:
    // Throws OutputError, which `picture` begins, where there is no such program: before the work
    // whose result it is to draw.
    explicit Gnuplot(std::string picture);

    // What the script writes to its standard output. Nothing is left on disk. Throws OutputError.
    std::string draw(std::string_view script) const;

private:
    [[noreturn]] void fail(const std::string& what) const;

    std::string picture_;
    std::string program_;
};

// Any text in a script: gnuplot interprets nothing between its quotes.
std::string scriptText(std::string_view text);

}   // namespace kfm::tool
