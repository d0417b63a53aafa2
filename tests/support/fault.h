// Turns a fatal signal of the called code (a touched guard page, a misaligned vector access, a
// trapped operation) into a result, so that one bad kernel does not end the whole test program.
#pragma once

#include <functional>

namespace kfm::tests {

// False when `body` raised a fatal signal. Destructors below the fault do not run.
bool survives(const std::function<void()>& body);

}   // namespace kfm::tests
