#include "output/bin_frequencies.h"

#include "failure.h"
#include "transform/planned_transform.h"

namespace kfm::tool {

std::vector<double> binFrequencies(const FrameTransform& transform, int length, double rate) {
    const std::string& name = transform.name();
    const bool planned = name == plannedFamily;
    if (!planned && name != "Hartley" && !name.starts_with("DFTFwd"))
        throw UsageError("--frequencies: results of " + name + " have none");
    std::vector<double> frequencies;
    for (int bin = 0; bin < static_cast<int>(transform.resultSize()); ++bin) {
        const int turns = 2 * bin > length ? bin - length : bin;   // of the frame
        frequencies.push_back(planned ? (bin + 0.5) * rate / (2.0 * length)
                                      : turns * rate / length);
    }
    return frequencies;
}

}   // namespace kfm::tool
