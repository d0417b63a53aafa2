// Frames put together to the signal that they were cut from.
#pragma once

#include <span>
#include <vector>

namespace kfm::tool {

// Each frame was seen through `window` and is weighed by it again; what the windows over a sample
// add up to is divided out. So any window and hop give the signal back as long as they leave no
// gaps, and where frames were changed, the signal whose frames come closest to them.
class OverlapAdd {
public:
    // A sample is `width` values; `window` is as long as a frame.
    OverlapAdd(std::vector<double> window, std::size_t width);

    void add(std::span<const double> frame);
    // The first `count` samples; the frames added from here on begin behind them. Valid until the
    // next call.
    std::span<const double> take(std::size_t count);

private:
    std::vector<double> window_;
    std::size_t width_;
    std::vector<double> sums_, weights_, taken_;
};

}   // namespace kfm::tool
