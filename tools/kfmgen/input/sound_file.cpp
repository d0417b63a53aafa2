#include "input/sound_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <string_view>

namespace kfm::tool {
namespace {

// Longer than any file, and no count of bits overflows.
constexpr sf_count_t endless = sf_count_t{1} << 56;

// What libsndfile is told of the length of the file; nothing of a pipe whose sound it cannot read
// from front to back.
std::optional<sf_count_t> lengthTold(InputFile& file, bool raw) {
    char bytes[12];
    const std::string_view head(bytes, file.read(bytes));
    file.seek(0);
    const auto begins = [&](std::string_view word) { return head.starts_with(word); };
    const bool aiff = begins("FORM") && head.substr(8).starts_with("AIF");
    const bool lengthInHeader = begins("RIFF") || begins("RIFX") || begins("RF64") || aiff ||
                                begins(".snd") || begins("caff") || begins("fLaC");
    if (raw || lengthInHeader) return endless;
    if (const auto size = file.size()) return *size;
    return begins("OggS") ? std::optional(endless) : std::nullopt;
}

const std::map<std::string, int> encodings = {
    {"u8", SF_FORMAT_PCM_U8},
    {"s8", SF_FORMAT_PCM_S8},
    {"s16le", SF_FORMAT_PCM_16 | SF_ENDIAN_LITTLE},
    {"s16be", SF_FORMAT_PCM_16 | SF_ENDIAN_BIG},
    {"s24le", SF_FORMAT_PCM_24 | SF_ENDIAN_LITTLE},
    {"s24be", SF_FORMAT_PCM_24 | SF_ENDIAN_BIG},
    {"s32le", SF_FORMAT_PCM_32 | SF_ENDIAN_LITTLE},
    {"s32be", SF_FORMAT_PCM_32 | SF_ENDIAN_BIG},
    {"f32le", SF_FORMAT_FLOAT | SF_ENDIAN_LITTLE},
    {"f32be", SF_FORMAT_FLOAT | SF_ENDIAN_BIG},
    {"f64le", SF_FORMAT_DOUBLE | SF_ENDIAN_LITTLE},
    {"f64be", SF_FORMAT_DOUBLE | SF_ENDIAN_BIG},
    {"ulaw", SF_FORMAT_ULAW},
    {"alaw", SF_FORMAT_ALAW},
};

int sampleBytes(int format) {
    switch (format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_16: return 2;
    case SF_FORMAT_PCM_24: return 3;
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_FLOAT: return 4;
    case SF_FORMAT_DOUBLE: return 8;
    default: return 1;
    }
}

}   // namespace

std::vector<std::string> rawEncodings() {
    std::vector<std::string> names;
    for (const auto& [name, format] : encodings) names.push_back(name);
    return names;
}

SF_VIRTUAL_IO SoundFile::calls = {
    [](void* data) { return static_cast<Stream*>(data)->length; },
    [](sf_count_t offset, int origin, void* data) {
        const auto& [file, length, emptyReads] = *static_cast<Stream*>(data);
        const sf_count_t here = file.position();
        const sf_count_t position = offset + (origin == SEEK_SET   ? 0
                                              : origin == SEEK_CUR ? here
                                                                   : length);
        if (position < 0) return sf_count_t{-1};
        file.seek(position);
        return position;
    },
    [](void* bytes, sf_count_t count, void* data) -> sf_count_t {
        Stream& stream = *static_cast<Stream*>(data);
        const std::span<char> wanted(static_cast<char*>(bytes), static_cast<std::size_t>(count));
        const std::size_t got = stream.file.read(wanted);
        if (got == 0) ++stream.emptyReads;
        return got;
    },
    [](const void*, sf_count_t, void*) { return sf_count_t{0}; },
    [](void* data) -> sf_count_t { return static_cast<Stream*>(data)->file.position(); },
};

SoundFile::Silence::Silence() : saved_(Descriptor::copyOf(STDERR_FILENO)) {
    const Descriptor null(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    if (saved_ && null) ::dup2(null.number(), STDERR_FILENO);
}

SoundFile::Silence::~Silence() {
    if (saved_) ::dup2(saved_.number(), STDERR_FILENO);
}

SoundFile::SoundFile(InputFile& file, const RawSound& raw) : stream_{file, 0} {
    const bool headerless = !raw.encoding.empty();
    if (headerless) {
        info_.format = SF_FORMAT_RAW | encodings.at(raw.encoding);
        info_.channels = raw.channels;
        info_.samplerate = raw.rate;
    }
    const std::optional<sf_count_t> length = lengthTold(file, headerless);
    if (length) {
        stream_.length = *length;
        const Silence silence;
        handle_.reset(sf_open_virtual(&calls, SFM_READ, &info_, &stream_));
    }
    if (file.error() != 0) fail("cannot be read: " + reason(file.error()));
    stream_.emptyReads = 0;
    if (handle_ || !length) return;
    switch (sf_error(nullptr)) {
    case SF_ERR_UNRECOGNISED_FORMAT: return;
    case SF_ERR_UNSUPPORTED_ENCODING: fail("a sound in an encoding that cannot be read");
    default: fail("a sound that is damaged or of an unknown kind");
    }
}

std::size_t SoundFile::read(std::span<double> samples) {
    if (ended_) return 0;
    const sf_count_t room = samples.size() / info_.channels;
    const sf_count_t wanted = std::min(room, info_.frames - count_);
    sf_count_t count;
    {
        const Silence silence;
        count = sf_readf_double(handle_.get(), samples.data(), wanted);
    }
    count_ += count;
    ended_ = count < room || samplesMadeUp();
    if (ended_) checkEnd();
    return count;
}

// Decoders of blocks go on when there are no more bytes. The last block may lack some.
bool SoundFile::samplesMadeUp() const { return stream_.emptyReads > 2; }

void SoundFile::checkEnd() const {
    const InputFile& file = stream_.file;
    const std::string after = "after " + std::to_string(count_) + " samples";
    if (file.error() != 0) fail("cannot be read on " + after + ": " + reason(file.error()));
    if (sf_error(handle_.get()) != SF_ERR_NO_ERROR) fail("damaged " + after);
    if (openEnded()) return;
    const std::string promised = std::to_string(info_.frames);
    if (samplesMadeUp())
        fail("ends after " + std::to_string(file.position()) + " bytes, before the last of " +
             promised + " samples");
    if (count_ < info_.frames) fail("ends " + after + " of " + promised);
}

void SoundFile::fail(const std::string& what) const {
    throw InputError(stream_.file.name() + ": " + what);
}

std::optional<std::uint64_t> SoundFile::count() const {
    if (openEnded()) return std::nullopt;
    return info_.frames;
}

// Who writes a sound into a pipe does not know its length and puts the largest in its place.
bool SoundFile::openEnded() const {
    if (info_.frames >= endless / 256) return true;
    const sf_count_t bytes = info_.frames * info_.channels * sampleBytes(info_.format);
    const auto near = [&](sf_count_t most) { return bytes <= most && bytes > most - (1 << 16); };
    return near(sf_count_t{1} << 31) || near(sf_count_t{1} << 32);
}

}   // namespace kfm::tool
