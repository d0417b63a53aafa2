// Signal handlers that jump back into survives() of the faulting thread.
#include "support/fault.h"

#include <csetjmp>
#include <csignal>

namespace kfm::tests {
namespace {

thread_local sigjmp_buf resume;
thread_local bool watching = false;

void onFault(int signal) {
    if (watching) siglongjmp(resume, signal);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

const bool installed = [] {
    struct sigaction action = {};
    action.sa_handler = onFault;
    action.sa_flags = SA_ONSTACK;   // where a thread has another, for one that ran out of stack
    for (int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) sigaction(signal, &action, nullptr);
    return true;
}();

}   // namespace

bool survives(const std::function<void()>& body) {
    const bool faulted = sigsetjmp(resume, 1) != 0;
    watching = installed && !faulted;
    if (watching) body();
    watching = false;
    return !faulted;
}

}   // namespace kfm::tests
