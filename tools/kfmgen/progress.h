// How far a command has come, for whoever sits before the terminal and waits.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace kfm::tool {

// A line on standard error where that is a terminal, from the second second on; gone at the end.
class Progress {
public:
    Progress();
    ~Progress();
    Progress(const Progress&) = delete;

    // `share` of the work is done, if one can tell.
    void update(std::optional<double> share, std::uint64_t samples);

private:
    using Clock = std::chrono::steady_clock;

    void show(std::optional<double> share, std::uint64_t samples, double seconds);

    bool terminal_;
    bool shown_ = false;
    Clock::time_point start_ = Clock::now();
    Clock::time_point next_ = start_ + std::chrono::seconds(1);
};

}   // namespace kfm::tool
