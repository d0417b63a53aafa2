// File descriptors: closed at the end, and opened by the names that stand for open ones.
#pragma once

#include <string>
#include <utility>

namespace kfm::tool {

class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor() { close(); }

    // Another descriptor of what `number` is open for; none when it is closed.
    static Descriptor copyOf(int number);

    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    int close();   // the errno of a failure, else 0

private:
    int number_;
};

// The number in /dev/stdin, /dev/stdout, /dev/stderr, /dev/fd/N and /proc/self/fd/N, else -1. To
// open such a name anew would begin at the front of the file, or fail for a socket.
int numberInName(const std::string& path);

// Keeps 0, 1 and 2 from being given to files that are opened later, where the caller closed them.
void occupyStandardDescriptors();

}   // namespace kfm::tool
