// The reader of SVC recordings: strict, so that a damaged file is named instead of played.
#include "recording.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

namespace lumora::replay {

namespace {

constexpr std::size_t ColumnCount = 7;
constexpr std::array<std::string_view, ColumnCount> ColumnNames = {"x",       "y",        "time",    "pen",
                                                                   "azimuth", "altitude", "pressure"};
constexpr std::string_view Blanks = " \t";
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

struct Limits {
    std::int64_t min;
    std::int64_t max;
};

constexpr Limits Signed32 = {std::numeric_limits<std::int32_t>::min(),
                             std::numeric_limits<std::int32_t>::max()};
constexpr Limits NotNegative32 = {0, std::numeric_limits<std::int32_t>::max()};
constexpr Limits Unsigned32 = {0, std::numeric_limits<std::uint32_t>::max()};
constexpr Limits ZeroOrOne = {0, 1};
constexpr std::array<Limits, ColumnCount> ColumnLimits = {Signed32, Signed32, Unsigned32,   ZeroOrOne,
                                                          Signed32, Signed32, NotNegative32};

enum class NumberFault { None, NotANumber, OutOfRange };

struct Number {
    std::int64_t value = 0;
    NumberFault fault = NumberFault::None;
};

Number ParseNumber(std::string_view text, Limits limits)
{
    Number number;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number.value);
    const bool whole = end == text.data() + text.size();
    if (!whole || error == std::errc::invalid_argument) {
        number.fault = NumberFault::NotANumber;
    } else if (error != std::errc{} || number.value < limits.min || number.value > limits.max) {
        number.fault = NumberFault::OutOfRange;
    }
    return number;
}

// Makes foreign text fit for an error message: one short line of printable characters.
std::string Quoted(std::string_view text)
{
    constexpr std::size_t MaxShown = 24;
    std::string quoted = "\"";
    for (const char character : text.substr(0, MaxShown)) {
        quoted += character >= ' ' && character <= '~' ? character : '?';
    }
    return quoted + (text.size() > MaxShown ? "...\"" : "\"");
}

std::string RangeText(Limits limits)
{
    return std::to_string(limits.min) + " to " + std::to_string(limits.max);
}

std::vector<std::string_view> SplitColumns(std::string_view line)
{
    std::vector<std::string_view> columns;
    for (std::size_t start = line.find_first_not_of(Blanks); start != std::string_view::npos;) {
        const std::size_t end = line.find_first_of(Blanks, start);
        columns.push_back(line.substr(start, end - start));
        start = line.find_first_not_of(Blanks, end);
    }
    return columns;
}

class SvcReader {
public:
    explicit SvcReader(std::istream& stream) : input(stream) {}

    RecordingResult Read()
    {
        std::optional<RecordingError> error = ReadCount_();
        if (!error) {
            error = ReadSamples_();
        }
        if (error) {
            return *error;
        }
        return std::move(recording);
    }

private:
    bool NextLine_()
    {
        if (!std::getline(input, line)) {
            return false;
        }
        ++lineNumber;
        if (lineNumber == 1 && line.starts_with(Utf8Mark)) {
            line.erase(0, Utf8Mark.size());
        }
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        return true;
    }

    // The error at the line that was read last.
    RecordingError Error_(std::string reason) const { return {lineNumber, std::move(reason)}; }

    std::optional<RecordingError> ReadCount_()
    {
        bool found = false;
        while (!found && NextLine_()) {
            found = !line.starts_with('#') && line.find_first_not_of(Blanks) != std::string::npos;
        }
        if (input.bad()) {
            return RecordingError{0, "the file cannot be read"};
        }
        if (lineNumber == 0) {
            return RecordingError{1, "the file is empty"};
        }
        if (!found) {
            return Error_("the file ends before the number of samples");
        }
        const std::vector<std::string_view> columns = SplitColumns(line);
        if (columns.size() != 1) {
            return Error_("the number of samples must stand alone on its line; found " + Quoted(line));
        }
        const Limits limits = {1, MaxSampleCount};
        const Number count = ParseNumber(columns.front(), limits);
        if (count.fault == NumberFault::NotANumber) {
            return Error_("the number of samples is not a number: " + Quoted(columns.front()));
        }
        if (count.fault == NumberFault::OutOfRange) {
            return Error_("the number of samples must be " + RangeText(limits) + "; it is " +
                          Quoted(columns.front()));
        }
        sampleCount = static_cast<std::size_t>(count.value);
        return std::nullopt;
    }

    std::optional<RecordingError> ReadSamples_()
    {
        recording.yUpwards = true;
        while (NextLine_()) {
            if (auto error = ReadSample_()) {
                // An empty rest of the file ends it; it is not a damaged sample.
                if (line.find_first_not_of(Blanks) != std::string::npos || !OnlyBlankLinesFollow_()) {
                    return error;
                }
            }
        }
        if (input.bad()) {
            return Error_("the file cannot be read beyond this line");
        }
        // Tablets' own files announce one sample too few: what is there is played.
        return recording.samples.size() < sampleCount ? std::optional(TooFew_()) : std::nullopt;
    }

    bool OnlyBlankLinesFollow_()
    {
        bool blank = true;
        while (blank && NextLine_()) {
            blank = line.find_first_not_of(Blanks) == std::string::npos;
        }
        return blank;
    }

    RecordingError TooFew_() const
    {
        return Error_("the file ends after " + std::to_string(recording.samples.size()) + " of " +
                      std::to_string(sampleCount) + " samples");
    }

    std::optional<RecordingError> ReadSample_()
    {
        const std::vector<std::string_view> columns = SplitColumns(line);
        if (columns.size() != ColumnCount) {
            return Error_("a sample has 7 columns (x y time pen azimuth altitude pressure); this line has " +
                          std::to_string(columns.size()));
        }
        std::array<std::int64_t, ColumnCount> values = {};
        for (std::size_t i = 0; i < ColumnCount; ++i) {
            const Number number = ParseNumber(columns[i], ColumnLimits[i]);
            if (number.fault != NumberFault::None) {
                return Error_(ColumnReason_(i, columns[i], number.fault));
            }
            values[i] = number.value;
        }
        const RecordedSample sample = {
            static_cast<std::int32_t>(values[0]), static_cast<std::int32_t>(values[1]),
            static_cast<std::uint32_t>(values[2]), static_cast<std::int32_t>(values[6]), values[3] == 1};
        if (!recording.samples.empty() && sample.time < recording.samples.back().time) {
            return Error_("time runs backwards: " + std::to_string(sample.time) + " after " +
                          std::to_string(recording.samples.back().time));
        }
        recording.samples.push_back(sample);
        return std::nullopt;
    }

    static std::string ColumnReason_(std::size_t column, std::string_view text, NumberFault fault)
    {
        const std::string name =
            "column " + std::to_string(column + 1) + " (" + std::string(ColumnNames[column]) + ") ";
        if (fault == NumberFault::NotANumber) {
            return name + "is not a whole number: " + Quoted(text);
        }
        return name + "must be " + RangeText(ColumnLimits[column]) + "; it is " + Quoted(text);
    }

    std::istream& input;
    std::string line;
    std::size_t lineNumber = 0;
    std::size_t sampleCount = 0;
    Recording recording;
};

} // namespace

RecordingResult ReadSvc(std::istream& input) { return SvcReader(input).Read(); }

} // namespace lumora::replay
