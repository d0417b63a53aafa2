// A stream of samples: a sound, a text with a sample per line, or a sound without a header. Which
// of the first two it is, the content tells; the file is opened once and read once from front to
// back, so that a pipe serves as well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "failure.h"
#include "input/input_file.h"
#include "progress.h"

namespace kfm::tool {

// Which channels of a sound, or columns without names of a text, make a sample.
struct Channels {
    enum class Use {
        unset,     // the only one; columns named re and im are a complex sample
        one,       // `number`, from 1 on
        mix,       // the mean of all
        each,      // every one for itself: a sample has as many values
        complex,   // the first is the real, the second the imaginary part
    };
    Use use = Use::unset;
    int number = 1;
};

// A sound without a header.
struct RawSound {
    std::string encoding;   // one of rawEncodings()
    int channels = 1;
    int rate = 44100;
};

struct InputOptions {
    std::string path = "-";   // - is standard input
    Channels channels;
    RawSound raw;   // without an encoding: not raw
};

// What a source has to deliver: anything else is refused at the place where it stands.
struct Demand {
    bool complex = false;    // two values per sample, the second 0 where samples are real
    bool single = false;     // only what single precision holds
    std::size_t frame = 0;   // rows that say their frame must have so many each; 0: any number
    bool bins = false;       // rows that say their frame are bins of half a spectrum
    std::string taker = "this command";   // who wants it, for messages
};

// What a text may say of the samples that its frames were made of, in lines "# rate 48000" and
// "# samples 100".
struct Notes {
    int rate = 0;
    std::optional<std::uint64_t> samples;
};

enum class SourceKind { text, sound, raw };

class SampleSource {
public:
    virtual ~SampleSource() = default;

    // Fills whole samples of one value, or two where complex ones are demanded, or one per channel
    // where each is chosen. Returns how many samples; fewer than there is room for only at the end.
    // Values are finite, full scale of a
    // sound is 1. Throws InputError for what cannot be read, is not all there, or is empty.
    std::size_t read(std::span<double> values);

    virtual SourceKind kind() const = 0;
    virtual int rate() const { return 0; }   // samples per second; a text has none
    virtual int channels() const = 0;        // in the file, whatever was chosen
    virtual std::optional<std::uint64_t> count() const { return std::nullopt; }   // where known
    virtual Notes notes() const { return {}; }      // among the lines read so far
    virtual bool framed() const { return false; }   // rows say their frame

    const std::string& name() const { return name_; }   // as messages call it

    void showProgress();   // from here on, unless somebody types the samples

protected:
    SampleSource(std::string name, const Demand& demand)
        : name_(std::move(name)), demand_(demand) {}

    const Demand& demand() const { return demand_; }

private:
    virtual std::size_t fill(std::span<double> values) = 0;
    virtual const InputFile& file() const = 0;

    std::string name_;
    Demand demand_;
    std::optional<Progress> progress_;
    std::uint64_t count_ = 0;   // samples so far
};

// Throws InputError for what cannot be opened, is neither sound nor text, or does not have the
// channels that were chosen; more than one without a choice is an error, too.
std::unique_ptr<SampleSource> openSamples(const InputOptions& options, const Demand& demand);

// Names of the encodings that a sound without a header may have.
std::vector<std::string> rawEncodings();

}   // namespace kfm::tool
