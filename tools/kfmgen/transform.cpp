#include "transform.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iostream>

#include "sound_file.h"
#include "text_samples.h"

namespace kfm::tool {
namespace {

// The shortest digits that read back as the same value in its precision.
std::string digits(double value, bool doublePrecision) {
    char buffer[32];
    const auto result = doublePrecision
                            ? std::to_chars(buffer, std::end(buffer), value)
                            : std::to_chars(buffer, std::end(buffer), static_cast<float>(value));
    return std::string(buffer, result.ptr);
}

Samples readTextFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    char head[512];
    const std::streamsize size = file.read(head, sizeof head).gcount();
    if (std::count(head, head + size, '\0') > 0)
        throw InputError(path + ": neither text nor a sound file that can be read");
    file.clear();
    file.seekg(0);
    return readText(file, path);
}

}   // namespace

Samples readSamples(const std::string& path) {
    if (path == "-") return readText(std::cin, "standard input");
    if (auto sound = readSound(path)) return std::move(sound->samples);
    return readTextFile(path);
}

void transformFrames(const Samples& samples, const FrameTransform& transform,
                     const Framing& framing, std::ostream& out) {
    if (samples.empty()) throw InputError("the input has no samples");
    const Form form = transform.resultForm();
    if (framing.tail == Tail::drop && samples.size() < framing.length)
        throw InputError(std::to_string(samples.size()) + " samples do not fill one frame of " +
                         std::to_string(framing.length));
    out << (form == Form::halfSpectrum ? "frame,bin," : "frame,index,")
        << (form == Form::realSignal ? "value\n" : "re,im\n");
    std::size_t frameNumber = 0;
    const auto writeFrame = [&](std::span<const Sample> frame) {
        std::size_t index = 0;
        for (const Sample& value : transform(frame)) {
            out << frameNumber << ',' << index++ << ','
                << digits(value.real(), transform.doublePrecision());
            if (form != Form::realSignal)
                out << ',' << digits(value.imag(), transform.doublePrecision());
            out << '\n';
        }
        ++frameNumber;
    };
    forEachFrame(samples, framing, writeFrame);
}

}   // namespace kfm::tool
