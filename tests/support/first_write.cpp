// The pages of the buffer are read-only until the first write faults.
#include "support/first_write.h"

#include <csignal>

namespace kfm::tests {
namespace {

struct Watch {
    GuardedBuffer& buffer;
    const std::function<void()>& then;
    struct sigaction before;
    bool written;
};

Watch* watch = nullptr;

// A fault elsewhere is another's: with the handler from before it comes again.
void onFault(int signal, siginfo_t* info, void*) {
    if (!watch->buffer.holds(info->si_addr)) {
        sigaction(signal, &watch->before, nullptr);
        return;
    }
    watch->buffer.makeWritable(true);
    watch->written = true;
    watch->then();
}

}   // namespace

bool atFirstWrite(GuardedBuffer& buffer, const std::function<void()>& then,
                  const std::function<void()>& body) {
    Watch current = {buffer, then, {}, false};
    watch = &current;
    struct sigaction action = {};
    action.sa_sigaction = onFault;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &action, &current.before);
    buffer.makeWritable(false);
    body();
    buffer.makeWritable(true);
    sigaction(SIGSEGV, &current.before, nullptr);
    return current.written;
}

}   // namespace kfm::tests
