// The moment between reading and writing: what a function does after it has begun to write.
#pragma once

#include <functional>

#include "support/buffer.h"

namespace kfm::tests {

// Runs `body`, and `then` just before the first write to the buffer or the rest of its pages.
// False when there was none.
bool atFirstWrite(GuardedBuffer& buffer, const std::function<void()>& then,
                  const std::function<void()>& body);

}   // namespace kfm::tests
