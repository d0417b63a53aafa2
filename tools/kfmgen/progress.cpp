#include "progress.h"

#include <unistd.h>

#include <cmath>
#include <string_view>

#include "spectrum/page_text.h"

namespace kfm::tool {
namespace {

// What cannot be shown is no reason to fail.
void show(std::string_view text) {
    if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return;
}

constexpr const char* clearLine = "\r\x1B[K";

}   // namespace

Progress::Progress() : terminal_(::isatty(STDERR_FILENO) != 0) {}

Progress::~Progress() {
    if (shown_) tool::show(clearLine);
}

void Progress::update(std::optional<double> share, std::uint64_t samples) {
    if (!terminal_) return;
    const Clock::time_point now = Clock::now();
    if (now < next_) return;
    next_ = now + std::chrono::milliseconds(200);
    show(share, samples, std::chrono::duration<double>(now - start_).count());
}

void Progress::show(std::optional<double> share, std::uint64_t samples, double seconds) {
    constexpr int columns = 40;
    shown_ = true;
    std::string line = clearLine;
    if (!share) {
        line += tool::samples(samples) + ", " + format("%.0f s", seconds);
    } else {
        const int done = static_cast<int>(*share * columns);
        const double left = *share > 0 ? std::ceil(seconds / *share * (1 - *share)) : 0;
        line += "[" + std::string(done, '#') + std::string(columns - done, ' ') + "]" +
                format(" %3.0f %%, %.0f s left", std::floor(100 * *share), left);
    }
    tool::show(line);
}

}   // namespace kfm::tool
