#include "input/sample_source.h"

#include <string_view>

#include "input/input_file.h"
#include "input/sound_source.h"
#include "input/text_source.h"

namespace kfm::tool {
namespace {

void checkText(InputFile& file) {
    char bytes[512];
    const std::string_view head(bytes, file.readSome(bytes));
    if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF"))
        throw InputError(file.name() + ": a text in UTF-16; save it as UTF-8");
    if (head.find('\0') != std::string_view::npos)
        throw InputError(file.name() + ": neither a text nor a sound of a kind that is known");
}

}   // namespace

std::size_t SampleSource::read(std::span<double> values) {
    const std::size_t count = fill(values);
    if (count_ == 0 && count == 0) throw InputError(name_ + ": no samples");
    count_ += count;
    if (progress_) progress_->update(file().shareRead(), count_);
    return count;
}

void SampleSource::showProgress() {
    if (!file().terminal()) progress_.emplace();
}

std::unique_ptr<SampleSource> openSamples(const InputOptions& options, const Demand& demand) {
    auto file = std::make_unique<InputFile>(options.path);
    if (auto sound = soundSource(file, options, demand)) return sound;
    checkText(*file);
    file->seek(0);
    file->forgetBeginning();
    return textSource(std::move(file), options.channels, demand);
}

}   // namespace kfm::tool
