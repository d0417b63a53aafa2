// Faults of a thread that has run out of stack are handled on a second one.
#include "support/small_stack.h"

#include <alloca.h>
#include <limits.h>
#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <memory>
#include <new>
#include <system_error>

#include "support/fault.h"

namespace kfm::tests {
namespace {

constexpr std::size_t handlerBytes = 64 * 1024;

struct Call {
    void (*run)(Call&);
    const std::function<void()>& body;
    char* lowest;        // of the stack; null for a stack of the system's
    std::size_t bytes;   // to leave of it
    bool fits;
};

void* runCall(void* argument) {
    const auto memory = std::make_unique<char[]>(handlerBytes);
    const stack_t handler = {.ss_sp = memory.get(), .ss_flags = 0, .ss_size = handlerBytes};
    const stack_t none = {.ss_sp = nullptr, .ss_flags = SS_DISABLE, .ss_size = 0};
    sigaltstack(&handler, nullptr);
    Call& call = *static_cast<Call*>(argument);
    call.run(call);
    sigaltstack(&none, nullptr);
    return nullptr;
}

bool runThread(pthread_attr_t& attributes, Call call) {
    pthread_t thread;
    const int error = pthread_create(&thread, &attributes, runCall, &call);
    pthread_attr_destroy(&attributes);
    if (error != 0) throw std::system_error(error, std::generic_category(), "pthread_create");
    pthread_join(thread, nullptr);
    return call.fits;
}

void runHere(Call& call) { call.fits = survives(call.body); }

// Pages can be taken away, bytes not: the stack moves down until what is left ends with a page.
[[gnu::noinline]] void runAbovePage(Call& call) {
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto end = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) - call.bytes;
    [[maybe_unused]] volatile char* const moved = static_cast<char*>(alloca(end % page + 1));
    *moved = 0;
    const std::size_t rest = (end - reinterpret_cast<std::uintptr_t>(call.lowest)) / page * page;
    mprotect(call.lowest, rest, PROT_NONE);
    runHere(call);
    mprotect(call.lowest, rest, PROT_READ | PROT_WRITE);
}

}   // namespace

bool fitsStack(std::size_t bytes, const std::function<void()>& body) {
    const std::size_t size = bytes + 128 * 1024;
    void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, memory, size);
    const bool fits = runThread(attributes, {runAbovePage, body, static_cast<char*>(memory),
                                             bytes + callersStack, false});
    munmap(memory, size);
    return fits;
}

bool fitsSmallestThread(const std::function<void()>& body) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, static_cast<std::size_t>(PTHREAD_STACK_MIN));
    return runThread(attributes, {runHere, body, nullptr, 0, false});
}

}   // namespace kfm::tests
