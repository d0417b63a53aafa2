// Successive halving with a tie rule.
#include "contest.h"

#include <algorithm>
#include <numeric>

namespace kfm::tune {
namespace {

constexpr std::size_t finalists = 4;

}   // namespace

double Contestant::time() const {
    double sum = 0;
    for (const bench::Subject& subject : subjects) sum += subject.minimum();
    return sum;
}

int findFastest(std::vector<Contestant>& contestants, int incumbent, int firstBatches) {
    std::vector<int> field(contestants.size());
    std::iota(field.begin(), field.end(), 0);
    for (int batches = firstBatches;; batches *= 2) {
        std::vector<bench::Subject*> subjects;
        for (int i : field)
            for (bench::Subject& subject : contestants[i].subjects) subjects.push_back(&subject);
        bench::runInterleaved(subjects, batches);
        std::ranges::sort(field, {}, [&](int i) { return contestants[i].time(); });
        if (field.size() <= finalists) break;
        // The incumbent stays to the end: a tie is decided on equally many batches.
        std::vector<int> next(field.begin(),
                              field.begin() + std::max(finalists, field.size() / 2));
        if (incumbent >= 0 && std::ranges::find(next, incumbent) == next.end())
            next.back() = incumbent;
        field = next;
    }
    const double limit = contestants[field[0]].time() * (1 + tieMargin);
    std::erase_if(field, [&](int i) { return contestants[i].time() > limit; });
    if (std::ranges::find(field, incumbent) != field.end()) return incumbent;
    return *std::ranges::min_element(field);
}

}   // namespace kfm::tune
