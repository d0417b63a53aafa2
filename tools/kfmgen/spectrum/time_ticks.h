// Ticks of an axis of time: at round seconds, minutes or hours.
#pragma once

#include <string>

namespace kfm::tool {

class TimeTicks {
public:
    // At most `most` of them up to `seconds`, not counting the one at 0.
    TimeTicks(double seconds, int most);

    double step() const { return step_; }
    std::string label(int tick) const;   // of the time tick * step()
    // What the labels are: seconds, or minutes and hours before a colon.
    std::string unit() const;

private:
    double seconds_;
    double step_;
};

}   // namespace kfm::tool
