// libsndfile over an InputFile. Where a header tells how long the sound is, libsndfile takes the
// file for endless: otherwise it would cut that length to what is there and say nothing.
#pragma once

#include <sndfile.h>

#include <cstdint>
#include <memory>
#include <optional>

#include "input/input_file.h"
#include "input/sample_source.h"

namespace kfm::tool {

class SoundFile {
public:
    // Not open when the file holds no sound. Throws InputError for a damaged one.
    SoundFile(InputFile& file, const RawSound& raw);
    SoundFile(const SoundFile&) = delete;

    explicit operator bool() const { return handle_ != nullptr; }
    int channels() const { return info_.channels; }
    int rate() const { return info_.samplerate; }
    std::optional<std::uint64_t> count() const;   // of moments, as the header says

    // Moments of one sample per channel. Returns how many; fewer than there is room for only at the
    // end. Throws InputError where the file cannot be read on or ends before its time.
    std::size_t read(std::span<double> samples);

private:
    struct Close {
        void operator()(SNDFILE* file) const { sf_close(file); }
    };

    bool samplesMadeUp() const;
    void checkEnd() const;
    bool openEnded() const;
    [[noreturn]] void fail(const std::string& what) const;

    struct Stream {
        InputFile& file;
        sf_count_t length;
        int emptyReads = 0;
    };
    static SF_VIRTUAL_IO calls;

    // Decoders below libsndfile write to standard error what they think of a damaged sound.
    class Silence {
    public:
        Silence();
        ~Silence();

    private:
        Descriptor saved_;
    };

    Stream stream_;
    SF_INFO info_{};
    std::unique_ptr<SNDFILE, Close> handle_;
    sf_count_t count_ = 0;   // moments read
    bool ended_ = false;
};

}   // namespace kfm::tool
