#include "output/signal_writer.h"

#include <sndfile.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>
#include <vector>

#include "digits.h"
#include "failure.h"

namespace kfm::tool {
namespace {

const std::map<std::string, int> soundKinds = {{".wav", SF_FORMAT_WAV},
                                               {".aiff", SF_FORMAT_AIFF},
                                               {".au", SF_FORMAT_AU},
                                               {".caf", SF_FORMAT_CAF}};

class TextSignal : public SignalWriter {
public:
    TextSignal(const std::string& path, const SignalFormat& format)
        : out_(path), raw_(format.format == Format::raw), width_(format.complex ? 2 : 1),
          doublePrecision_(format.doublePrecision),
          values_(resultWriter(out_, Format::raw, Form::realSignal, doublePrecision_)) {
        if (!raw_) out_.write(width_ == 2 ? "index,re,im\n" : "index,value\n");
    }

    void write(std::span<const double> values) override {
        if (raw_) {
            values_->writeFrame(values);
            return;
        }
        char row[3 * longestNumber];
        for (std::size_t i = 0; i < values.size(); i += width_) {
            char* end = writeNumber(row, index_++);
            for (std::size_t part = 0; part < width_; ++part) {
                *end++ = ',';
                end = writeNumber(end, values[i + part], doublePrecision_);
            }
            *end++ = '\n';
            out_.write({row, end});
        }
    }

    void complete() override { out_.complete(); }

private:
    OutputFile out_;
    bool raw_;
    std::size_t width_;
    bool doublePrecision_;
    std::unique_ptr<ResultWriter> values_;
    std::uint64_t index_ = 0;
};

// libsndfile goes back to the header when the length is known: nothing for a pipe.
class SoundSignal : public SignalWriter {
public:
    SoundSignal(const std::string& path, const SignalFormat& format)
        : name_(displayed(path)), out_(path) {
        if (::lseek(out_.descriptor(), 0, SEEK_CUR) < 0) out_.fail(errno);
        SF_INFO info = {};
        info.samplerate = format.rate;
        info.channels = format.complex ? 2 : 1;
        info.format = soundKinds.at(std::filesystem::path(path).extension()) |
                      (format.doublePrecision ? SF_FORMAT_DOUBLE : SF_FORMAT_FLOAT);
        handle_.reset(sf_open_fd(out_.descriptor(), SFM_WRITE, &info, SF_FALSE));
        if (!handle_) throw OutputError(name_ + ": cannot be written: " + sf_strerror(nullptr));
        // The time of writing would be in the file.
        sf_command(handle_.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
    }

    void write(std::span<const double> values) override {
        const auto count = static_cast<sf_count_t>(values.size());
        errno = 0;
        if (sf_write_double(handle_.get(), values.data(), count) != count) fail();
    }

    void complete() override {
        errno = 0;
        sf_write_sync(handle_.get());
        if (sf_error(handle_.get()) != SF_ERR_NO_ERROR) fail();
        if (sf_close(handle_.release()) != 0) fail();
        out_.complete();
    }

private:
    struct Close {
        void operator()(SNDFILE* file) const { sf_close(file); }
    };

    [[noreturn]] void fail() const { out_.fail(errno != 0 ? errno : EIO); }

    std::string name_;
    OutputFile out_;
    std::unique_ptr<SNDFILE, Close> handle_;
};

}   // namespace

bool namesSound(const std::string& path) {
    return soundKinds.contains(std::filesystem::path(path).extension());
}

std::unique_ptr<SignalWriter> signalWriter(const std::string& path, const SignalFormat& format) {
    if (!namesSound(path)) return std::make_unique<TextSignal>(path, format);
    if (format.rate == 0)
        throw UsageError(displayed(path) + ": a sound needs a rate, and none is known; see --rate");
    return std::make_unique<SoundSignal>(path, format);
}

}   // namespace kfm::tool
