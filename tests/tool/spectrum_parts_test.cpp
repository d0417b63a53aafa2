// Parts of the spectrum analysis where a whole sound does not reach every case.
#include <gtest/gtest.h>

#include <algorithm>

#include "sounds.h"
#include "spectrum/frame_power.h"
#include "spectrum/peaks.h"

namespace kfm::test {
namespace {

using tool::FrequencyGrid;

// What rises again by less than 3 dB on the side of something higher is no peak, on either side.
TEST(SpectrumPeaks, ShoulderIsNoPeak) {
    const FrequencyGrid grid{256, 256, 256};
    for (const double dip : {0.3, 0.6})
        for (const int side : {-1, 1}) {
            std::vector<double> bins(256, 1e-20);
            bins[100] = 1;
            bins[100 + side] = dip;
            bins[100 + 2 * side] = 0.8;
            tool::PowerSpectrum spectrum;
            spectrum.add({bins, 0}, 1);
            EXPECT_EQ(strongestPeaks(spectrum, grid, 10).size(), dip < 0.4 ? 2u : 1u);
        }
}

TEST(FramePower, ShortFrameAfterALongOne) {
    tool::FramePower used(256), fresh(256);
    const std::vector<double> noise = whiteNoise(256);
    used(noise);
    const std::span<const double> few = std::span(noise).first(100);
    EXPECT_TRUE(std::ranges::equal(used(few).bins, fresh(few).bins));
}

}   // namespace
}   // namespace kfm::test
