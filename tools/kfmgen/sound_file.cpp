#include "sound_file.h"

#include <sndfile.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace kfm::tool {
namespace {

struct CloseSound {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundHandle = std::unique_ptr<SNDFILE, CloseSound>;

std::string channelError(const std::string& path, int channels) {
    return path + ": " + std::to_string(channels) +
           " channels; a sound file must be mono (real) or stereo (real, imaginary)";
}

}   // namespace

std::optional<Sound> readSound(const std::string& path) {
    if (std::filesystem::is_directory(path)) throw InputError(path + ": is a folder");
    if (!std::ifstream(path)) throw InputError(path + ": cannot be read");
    SF_INFO info = {};
    const SoundHandle file(sf_open(path.c_str(), SFM_READ, &info));
    if (!file) {
        const int error = sf_error(nullptr);
        if (error == SF_ERR_UNRECOGNISED_FORMAT) return std::nullopt;
        throw InputError(path + ": " + sf_error_number(error));
    }
    if (info.channels > 2) throw InputError(channelError(path, info.channels));

    Sound sound{info.samplerate, info.channels, {}};
    constexpr sf_count_t blockFrames = 4096;
    std::vector<double> block(blockFrames * info.channels);
    while (const sf_count_t frames = sf_readf_double(file.get(), block.data(), blockFrames))
        for (sf_count_t i = 0; i < frames; ++i)
            sound.samples.push_back(info.channels == 1 ? Sample(block[i])
                                                       : Sample(block[2 * i], block[2 * i + 1]));
    return sound;
}

}   // namespace kfm::tool
