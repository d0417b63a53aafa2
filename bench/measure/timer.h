// How everything here is timed. A subject is called in batches long enough for the clock to be
// exact; subjects that are to be compared take turns, batch by batch, so that a change of clock
// rate or a noisy neighbour hits all of them; the minimum over the batches is what a call costs
// when nothing disturbs it.
#pragma once

#include <sched.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <span>
#include <vector>

namespace kfm::bench {

// A batch lasts between one and two floors.
inline constexpr double batchFloorNs = 50e3;

class Subject {
public:
    // `repeat(n)` makes n calls. Finding the batch size doubles as the warm-up. Twice each, because
    // a short batch looks long when something else has the processor meanwhile.
    explicit Subject(std::function<void(long)> repeat) : repeat(std::move(repeat)) {
        while (std::min(timeBatch(), timeBatch()) < batchFloorNs) calls *= 2;
    }

    void runBatch() { samples.push_back(timeBatch() / calls); }

    // ns per call.
    double minimum() const { return *std::ranges::min_element(samples); }
    double median() const {
        std::vector<double> sorted = samples;
        const auto middle = sorted.begin() + sorted.size() / 2;
        std::ranges::nth_element(sorted, middle);
        return *middle;
    }

private:
    double timeBatch() const {
        using Clock = std::chrono::steady_clock;
        const auto start = Clock::now();
        repeat(calls);
        return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
    }

    std::function<void(long)> repeat;
    long calls = 1;
    std::vector<double> samples;
};

inline void runInterleaved(std::span<Subject* const> subjects, int batches) {
    for (int batch = 0; batch < batches; ++batch)
        for (Subject* subject : subjects) subject->runBatch();
}

// Two files of the library that differ by less are level: that is what minima are good for on a
// machine with neighbours.
inline constexpr double levelRatio = 1.03;

// In turns; where the first subject seems slower than the other file's, which a neighbour's work
// may have done, up to three times more.
inline void runAgainst(const Subject& other, std::span<Subject* const> subjects, int batches) {
    for (int run = 0; run < 4; ++run) {
        runInterleaved(subjects, batches);
        if (subjects.front()->minimum() <= levelRatio * other.minimum()) return;
    }
}

// A subject whose "call" takes one processor cycle: a step in a chain of dependent additions.
// Register operands, because newer processors fold additions of immediates into one.
inline Subject cycleSubject() {
    constexpr long stepsPerBlock = 1024;
    return Subject([](long cycles) {
        unsigned sum = 0, step = 1;
        for (long i = 0; i < cycles; i += stepsPerBlock)
#ifdef __aarch64__
            asm volatile(".rept 1024\n\tadd %w0, %w0, %w1\n\t.endr" : "+r"(sum) : "r"(step));
#else
            asm volatile(".rept 1024\n\tadd %1, %0\n\t.endr" : "+r"(sum) : "r"(step) : "cc");
#endif
    });
}

// Keeps the calling thread on one processor for its own lifetime.
class PinnedToCore {
public:
    explicit PinnedToCore(int core) {
        sched_getaffinity(0, sizeof before, &before);
        cpu_set_t chosen;
        CPU_ZERO(&chosen);
        CPU_SET(core, &chosen);
        sched_setaffinity(0, sizeof chosen, &chosen);
    }
    ~PinnedToCore() { sched_setaffinity(0, sizeof before, &before); }
    PinnedToCore(const PinnedToCore&) = delete;
    PinnedToCore& operator=(const PinnedToCore&) = delete;

private:
    cpu_set_t before;
};

// Interrupts are served by the first processor more often than by the last.
inline int lastCore() {
    cpu_set_t allowed;
    sched_getaffinity(0, sizeof allowed, &allowed);
    int core = CPU_SETSIZE - 1;
    while (core > 0 && !CPU_ISSET(core, &allowed)) --core;
    return core;
}

}   // namespace kfm::bench
