#include "input/text_source.h"

#include <limits>
#include <optional>
#include <utility>

#include "input/channel_choice.h"
#include "input/frame_labels.h"
#include "input/line_reader.h"
#include "input/text_columns.h"
#include "numbers.h"

namespace kfm::tool {
namespace {

constexpr const char* pointHint = "; decimals are marked by a point, not by a comma";

class TextSource : public SampleSource {
public:
    TextSource(std::unique_ptr<InputFile> file, const Channels& channels, const Demand& demand);

    SourceKind kind() const override { return SourceKind::text; }
    int channels() const override { return static_cast<int>(columns_.data.size()); }
    Notes notes() const override { return notes_; }
    bool framed() const override { return columns_.framed; }

private:
    std::size_t fill(std::span<double> values) override;
    const InputFile& file() const override { return *file_; }
    bool nextRow();
    void note(std::string_view line);
    void checkNumbers();
    void readRow(double* sample);
    void checkLabels();
    template <class Number>
    Number checked(Parsed<Number> parsed, std::string_view field) const;
    [[noreturn]] void fail(std::string_view part, const std::string& what) const;

    std::unique_ptr<InputFile> file_;
    LineReader lines_;
    Notes notes_;
    TextColumns columns_;
    std::optional<ChannelChoice> choice_;
    std::optional<FrameLabels> labels_;
    std::string_view row_;
    bool held_ = false;   // `row_` was looked at and is still to be read
    Fields fields_;
    std::vector<double> moment_;   // the channels of one row
};

TextSource::TextSource(std::unique_ptr<InputFile> file, const Channels& channels,
                       const Demand& demand)
    : SampleSource(file->name(), demand), file_(std::move(file)), lines_(*file_) {
    if (!nextRow()) return;
    columns_ = columnsOf(row_, lines_.place());
    held_ = !columns_.named;
    moment_.resize(columns_.data.size());
    if (held_) checkNumbers();
    const bool commas = held_ && columns_.separators == ",";
    choice_.emplace(channels, demand,
                    ChannelsThere{.file = held_ ? lines_.place() : name(),
                                  .word = "column",
                                  .count = this->channels(),
                                  .complex = columns_.named && moment_.size() == 2,
                                  .hint = commas ? pointHint : ""});
    if (!columns_.framed || demand.frame == 0) return;
    if (columns_.bins != demand.bins)
        throw InputError(lines_.place() + ": " + demand.taker +
                         (demand.bins ? " takes bins of half a spectrum, not rows named index"
                                      : " does not take bins of half a spectrum"));
    labels_.emplace(demand.frame);
}

// Brings the next line that counts into `row_`.
bool TextSource::nextRow() {
    if (std::exchange(held_, false)) return true;
    while (const auto line = lines_.next()) {
        row_ = trimmed(*line);
        if (row_.starts_with('#')) note(row_);
        else if (!row_.empty()) return true;
    }
    return false;
}

// Other remarks are anybody's.
void TextSource::note(std::string_view line) {
    split(line, blanks, fields_);
    if (fields_.size() != 3 || fields_[0] != "#") return;
    const Parsed<std::int64_t> number = wholeNumber(fields_[2]);
    if (number.trouble || number.value < 1) return;
    if (fields_[1] == "samples") notes_.samples = number.value;
    if (fields_[1] == "rate" && number.value <= std::numeric_limits<int>::max())
        notes_.rate = static_cast<int>(number.value);
}

// A first line in words is no row of so many channels.
void TextSource::checkNumbers() {
    split(row_, columns_.separators, fields_);
    for (const std::string_view field : fields_) checked(realNumber(field), field);
}

std::size_t TextSource::fill(std::span<double> values) {
    const std::size_t width = choice_ ? choice_->width() : 1;
    std::size_t count = 0;
    while ((count + 1) * width <= values.size() && nextRow()) readRow(&values[width * count++]);
    if (labels_ && (count + 1) * width <= values.size())
        if (const std::string what = labels_->end(); !what.empty())
            throw InputError(lines_.place() + ": " + what);
    return count;
}

void TextSource::readRow(double* sample) {
    split(row_, columns_.separators, fields_);
    if (fields_.size() != columns_.count)
        fail(row_, "expected as many columns as before, " + std::to_string(columns_.count) +
                       ", not " + std::to_string(fields_.size()));
    if (labels_) checkLabels();
    for (std::size_t i = 0; i < moment_.size(); ++i)
        moment_[i] = checked(realNumber(fields_[columns_.data[i]]), fields_[columns_.data[i]]);
    if (const std::string what = choice_->make(moment_, sample); !what.empty())
        fail(fields_[columns_.data[0]], what);
}

void TextSource::checkLabels() {
    const std::string_view frame = fields_[columns_.frame];
    const std::string_view index = fields_[columns_.index];
    const std::string what =
        labels_->next(checked(wholeNumber(frame), frame), checked(wholeNumber(index), index));
    if (!what.empty()) fail(index, what);
}

template <class Number>
Number TextSource::checked(Parsed<Number> parsed, std::string_view field) const {
    if (!parsed.trouble) return parsed.value;
    const bool comma = field.find(',') != std::string_view::npos;
    fail(field, inQuotes(field) + " " + parsed.trouble + (comma ? pointHint : ""));
}

void TextSource::fail(std::string_view part, const std::string& what) const {
    throw InputError(lines_.place(part) + ": " + what);
}

}   // namespace

std::unique_ptr<SampleSource> textSource(std::unique_ptr<InputFile> file, const Channels& channels,
                                         const Demand& demand) {
    return std::make_unique<TextSource>(std::move(file), channels, demand);
}

}   // namespace kfm::tool
