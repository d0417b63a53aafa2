// Successive halving with a tie rule.
#include "contest.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace kfm::tune {
namespace {

constexpr std::size_t finalists = 4;

}   // namespace

int findFastest(std::vector<bench::Subject>& contestants, int incumbent, int firstBatches) {
    std::vector<int> field(contestants.size());
    std::iota(field.begin(), field.end(), 0);
    for (int batches = firstBatches;; batches *= 2) {
        std::vector<bench::Subject*> subjects;
        for (int i : field) subjects.push_back(&contestants[i]);
        bench::runInterleaved(subjects, batches);
        std::ranges::sort(field, {}, [&](int i) { return contestants[i].minimum(); });
        if (field.size() <= finalists) break;
        // The incumbent stays to the end: a tie is decided on equally many batches.
        std::vector<int> next(field.begin(), field.begin() + std::max(finalists, field.size() / 2));
        if (incumbent >= 0 && std::ranges::find(next, incumbent) == next.end())
            next.back() = incumbent;
        field = next;
    }
    std::vector<double> times(contestants.size(), std::numeric_limits<double>::infinity());
    for (int i : field) times[i] = contestants[i].minimum();
    return winner(times, incumbent);
}

int winner(std::span<const double> times, int incumbent) {
    const double limit = *std::ranges::min_element(times) * (1 + tieMargin);
    if (incumbent >= 0 && times[incumbent] <= limit) return incumbent;
    return std::ranges::find_if(times, [=](double time) { return time <= limit; }) - times.begin();
}

}   // namespace kfm::tune
