// The commands of kfmgen, each with its options: a file registers one, main.cpp all of them.
#pragma once

#include <CLI/CLI.hpp>
#include <ostream>

namespace kfm::tool {

// A command writes what it shows to `page`, which is printed when the command is done.
void addListings(CLI::App& app, std::ostream& page);
void addTransform(CLI::App& app);
void addSpectrum(CLI::App& app, std::ostream& page);
void addSpectrogram(CLI::App& app, std::ostream& page);
void addBench(CLI::App& app, std::ostream& page);
void addAccuracy(CLI::App& app, std::ostream& page);

}   // namespace kfm::tool
