// Threads with little stack: whether a call stays within what it is said to take.
#pragma once

#include <cstddef>
#include <functional>

namespace kfm::tests {

// Beside what is promised: the frames between here and the function under test.
inline constexpr std::size_t callersStack = 1024;

// Runs `body` on a thread of its own with `bytes` of stack and the callers' left, behind which
// nothing is accessible. False when it ran over.
bool fitsStack(std::size_t bytes, const std::function<void()>& body);

// The same on a thread with the smallest stack that the system gives to one.
bool fitsSmallestThread(const std::function<void()>& body);

}   // namespace kfm::tests
