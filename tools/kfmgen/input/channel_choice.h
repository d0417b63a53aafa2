// The channels of a file made into the samples that are demanded.
#pragma once

#include <span>
#include <string>

#include "input/sample_source.h"

namespace kfm::tool {

struct ChannelsThere {
    std::string file;   // which begins a message
    std::string word;   // what one of them is called
    int count;
    bool complex = false;   // the file itself calls them real and imaginary part
    std::string hint{};     // which ends a message
};

class ChannelChoice {
public:
    // Throws InputError when there is no such choice among these channels.
    ChannelChoice(const Channels& wanted, const Demand& demand, const ChannelsThere& there);

    std::size_t width() const { return width_; }   // values per sample

    // Makes one sample of the channels of one moment. Returns what is wrong with it, if anything.
    std::string make(std::span<const double> channels, double* sample) const;

private:
    std::string objection(double re, double im) const;

    static constexpr int none = -1, all = -2;

    Demand demand_;
    std::size_t width_;
    bool each_ = false;
    int re_ = 0;
    int im_ = none;
};

}   // namespace kfm::tool
