#include "input/sound_source.h"

#include <algorithm>
#include <vector>

#include "input/channel_choice.h"
#include "input/sound_file.h"

namespace kfm::tool {
namespace {

constexpr std::size_t blockSamples = 1 << 15;   // of all channels

class SoundSource : public SampleSource {
public:
    SoundSource(std::unique_ptr<InputFile> file, std::unique_ptr<SoundFile> sound,
                const InputOptions& options, const Demand& demand)
        : SampleSource(file->name(), demand),
          kind_(options.raw.encoding.empty() ? SourceKind::sound : SourceKind::raw),
          file_(std::move(file)), sound_(std::move(sound)),
          choice_(options.channels, demand,
                  {.file = name(), .word = "channel", .count = sound_->channels()}),
          block_(blockSamples / sound_->channels() * sound_->channels()) {}

    SourceKind kind() const override { return kind_; }
    int rate() const override { return sound_->rate(); }
    int channels() const override { return sound_->channels(); }
    std::optional<std::uint64_t> count() const override { return sound_->count(); }

private:
    std::size_t fill(std::span<double> values) override;
    const InputFile& file() const override { return *file_; }

    SourceKind kind_;
    std::unique_ptr<InputFile> file_;
    std::unique_ptr<SoundFile> sound_;
    ChannelChoice choice_;
    std::vector<double> block_;
    std::size_t begin_ = 0, end_ = 0;   // moments of the block that are still to be delivered
    std::uint64_t delivered_ = 0;
};

std::size_t SoundSource::fill(std::span<double> values) {
    const std::size_t channels = sound_->channels();
    const std::size_t width = choice_.width();
    const std::size_t wanted = values.size() / width;
    std::size_t count = 0;
    for (; count < wanted; ++count, ++begin_, ++delivered_) {
        if (begin_ == end_) {
            begin_ = 0;
            end_ = sound_->read(block_);
            if (end_ == 0) break;
        }
        const std::span<const double> moment(&block_[begin_ * channels], channels);
        if (const std::string what = choice_.make(moment, &values[count * width]); !what.empty())
            throw InputError(name() + ": sample " + std::to_string(delivered_) + ": " + what);
    }
    return count;
}

}   // namespace

std::unique_ptr<SampleSource> soundSource(std::unique_ptr<InputFile>& file,
                                          const InputOptions& options, const Demand& demand) {
    auto sound = std::make_unique<SoundFile>(*file, options.raw);
    if (*sound) {
        file->forgetBeginning();
        return std::make_unique<SoundSource>(std::move(file), std::move(sound), options, demand);
    }
    file->seek(0);
    return nullptr;
}

}   // namespace kfm::tool
