// The spectrum page: tones must turn up in their band and slice and nowhere else.
#include <cmath>
#include <numbers>
#include <sstream>

#include "run_tool.h"

namespace kfm::test {
namespace {

class Spectrum : public ToolTest {
protected:
    static std::vector<double> tone(double frequency, int rate, double seconds, double amplitude) {
        std::vector<double> samples;
        for (int i = 0; i < seconds * rate; ++i)
            samples.push_back(amplitude * std::sin(2 * std::numbers::pi * frequency * i / rate));
        return samples;
    }

    // The lines of the page that contain `words`.
    static std::vector<std::string> lines(const std::string& page, const std::string& words) {
        std::vector<std::string> found;
        std::istringstream text(page);
        for (std::string line; std::getline(text, line);)
            if (line.find(words) != std::string::npos) found.push_back(line);
        return found;
    }

    // First number after the bar of each slice.
    static std::vector<int> strongest(const std::string& page) {
        std::vector<int> bands;
        for (const std::string& line : lines(page, " s ")) {
            const std::size_t end = line.find("dB");
            int band = 0;
            if (end != std::string::npos && sscanf(line.c_str() + end + 2, " %*[#] %d", &band) == 1)
                bands.push_back(band);
        }
        return bands;
    }
};

TEST_F(Spectrum, TonesAppearInTheirSlices) {
    for (const int rate : {8000, 16000, 48000}) {
        SCOPED_TRACE(rate);
        std::vector<double> samples = tone(1000, rate, 1, 0.5);
        const std::vector<double> second = tone(2500, rate, 1, 0.5);
        samples.insert(samples.end(), second.begin(), second.end());
        const std::string file = soundFile("tones.wav", rate, 1, samples);
        EXPECT_EQ(strongest(run("spectrum --slice 1 " + file).out), (std::vector{1000, 2500}));
    }
}

TEST_F(Spectrum, LevelIsRelativeToFullScaleSine) {
    const std::string file = soundFile("half.wav", 48000, 1, tone(1000, 48000, 1, 0.5));
    const std::string page = run("spectrum --slice 1 " + file).out;
    EXPECT_EQ(lines(page, " -6 dB").size(), 2u) << page;   // its slice and its band
}

TEST_F(Spectrum, ToneAboveTheAnalysedBandDoesNotFoldBack) {
    const std::string file = soundFile("high.wav", 48000, 1, tone(9000, 48000, 1, 0.9));
    const std::string page = run("spectrum --slice 1 " + file).out;
    // Whatever bands are listed as strongest must be faint.
    for (const std::string& line : lines(page, " Hz ")) {
        int band = 0, db = 0;
        if (sscanf(line.c_str(), " %d Hz %d dB", &band, &db) != 2) continue;
        EXPECT_LT(db, -40) << line;
    }
    EXPECT_LT(std::stoi(page.substr(page.find("0.00 s") + 6)), -40) << page;
}

TEST_F(Spectrum, StereoIsMixed) {
    std::vector<double> interleaved;
    for (const double sample : tone(1000, 8000, 1, 0.5)) {
        interleaved.push_back(sample);
        interleaved.push_back(-sample);
    }
    const Outcome outcome = run("spectrum " + soundFile("opposed.wav", 8000, 2, interleaved));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.out.find("none: silence"), std::string::npos) << outcome.out;
}

}   // namespace
}   // namespace kfm::test
