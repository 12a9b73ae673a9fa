// The reader of SVC recordings: strict, so that a damaged file is named instead of played.
#include "svc.h"
#include "number_text.h"

#include <array>
#include <cmath>
#include <istream>
#include <optional>
#include <string_view>

namespace lumora::replay {

namespace {

constexpr std::size_t ColumnCount = 7;
constexpr std::size_t PenColumn = 3;
constexpr std::array<std::string_view, ColumnCount> ColumnNames = {"x",       "y",        "time",    "pen",
                                                                   "azimuth", "altitude", "pressure"};
constexpr std::string_view BlanksInALine = " \t";
constexpr std::string_view UnitComment = "# time-unit:";

struct Limits {
    double min;
    double max;
};

constexpr Limits Position = {-MaxPosition, MaxPosition};
constexpr std::array<Limits, ColumnCount> ColumnLimits = {
    Position, Position, Limits{0, MaxTime}, Limits{0, 1}, Position, Position, Limits{0, MaxPressure}};

bool IsWhole(double number) { return number == std::trunc(number); }

std::string RangeText(Limits limits) { return NumberText(limits.min) + " to " + NumberText(limits.max); }

std::vector<std::string_view> SplitColumns(std::string_view line)
{
    std::vector<std::string_view> columns;
    for (std::size_t start = line.find_first_not_of(BlanksInALine); start != std::string_view::npos;) {
        const std::size_t end = line.find_first_of(BlanksInALine, start);
        columns.push_back(line.substr(start, end - start));
        start = line.find_first_not_of(BlanksInALine, end);
    }
    return columns;
}

class SvcReader {
public:
    SvcReader(std::istream& stream, std::optional<TimeUnit> told) : input(stream), unit(told) {}

    RecordingResult Read()
    {
        std::optional<RecordingError> error = ReadCount_();
        if (!error) {
            error = ReadSamples_();
        }
        if (!error) {
            error = ConvertTimes_();
        }
        if (error) {
            return *error;
        }
        ScaleSharesOfPressure(recording.samples);
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
            found = !line.starts_with('#') && line.find_first_not_of(BlanksInALine) != std::string::npos;
            if (auto error = ReadUnitComment_()) {
                return error;
            }
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
        const std::optional<double> count = ParseNumber(columns.front());
        if (!count || !IsWhole(*count)) {
            return Error_("the number of samples is not a number: " + Quoted(columns.front()));
        }
        if (*count < limits.min || *count > limits.max) {
            return Error_("the number of samples must be " + RangeText(limits) + "; it is " +
                          Quoted(columns.front()));
        }
        sampleCount = static_cast<std::size_t>(*count);
        firstSampleLine = lineNumber + 1;
        return std::nullopt;
    }

    std::optional<RecordingError> ReadUnitComment_()
    {
        if (!line.starts_with(UnitComment)) {
            return std::nullopt;
        }
        const std::vector<std::string_view> words =
            SplitColumns(std::string_view(line).substr(UnitComment.size()));
        const std::optional<TimeUnit> named = words.size() == 1 ? ParseTimeUnit(words.front()) : std::nullopt;
        if (!named) {
            return Error_("the unit of time must be s, ms or us; found " + Quoted(line));
        }
        unit = unit.value_or(*named);
        return std::nullopt;
    }

    std::optional<RecordingError> ReadSamples_()
    {
        recording.yUpwards = true;
        while (NextLine_()) {
            if (auto error = ReadSample_()) {
                // An empty rest of the file ends it; it is not a damaged sample.
                if (line.find_first_not_of(BlanksInALine) != std::string::npos || !OnlyBlankLinesFollow_()) {
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
            blank = line.find_first_not_of(BlanksInALine) == std::string::npos;
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
        std::array<double, ColumnCount> values = {};
        for (std::size_t i = 0; i < ColumnCount; ++i) {
            const std::optional<double> number = ParseNumber(columns[i]);
            if (!number) {
                return Error_(ColumnName_(i) + "is not a number: " + Quoted(columns[i]));
            }
            if (*number < ColumnLimits[i].min || *number > ColumnLimits[i].max) {
                return Error_(ColumnName_(i) + "must be " + RangeText(ColumnLimits[i]) + "; it is " +
                              Quoted(columns[i]));
            }
            values[i] = *number;
        }
        if (!IsWhole(values[PenColumn])) {
            return Error_(ColumnName_(PenColumn) + "must be 0 or 1; it is " + Quoted(columns[PenColumn]));
        }
        const RecordedSample sample = {values[0],      values[1], values[2], values[6],
                                       values[3] == 1, values[4], values[5]};
        return Append_(sample);
    }

    std::optional<RecordingError> Append_(const RecordedSample& sample)
    {
        if (!recording.samples.empty() && sample.time < recording.samples.back().time) {
            return Error_("time runs backwards: " + NumberText(sample.time) + " after " +
                          NumberText(recording.samples.back().time));
        }
        if (recording.samples.size() == MaxSampleCount) {
            return Error_("there are more than " + std::to_string(MaxSampleCount) + " samples");
        }
        recording.samples.push_back(sample);
        return std::nullopt;
    }

    // The unit is known when all samples are.
    std::optional<RecordingError> ConvertTimes_()
    {
        const TimeUnit used = unit ? *unit : GuessTimeUnit(recording.samples);
        std::size_t sampleLine = firstSampleLine;
        for (RecordedSample& sample : recording.samples) {
            sample.time = ToMilliseconds(sample.time, used);
            if (auto reason = CheckTime(sample.time, recording.samples.front().time)) {
                return RecordingError{sampleLine, std::move(*reason)};
            }
            ++sampleLine;
        }
        return std::nullopt;
    }

    static std::string ColumnName_(std::size_t column)
    {
        return "column " + std::to_string(column + 1) + " (" + std::string(ColumnNames[column]) + ") ";
    }

    std::istream& input;
    std::optional<TimeUnit> unit;
    std::string line;
    std::size_t lineNumber = 0;
    std::size_t firstSampleLine = 0;
    std::size_t sampleCount = 0;
    Recording recording;
};

} // namespace

RecordingResult ReadSvc(std::istream& input, std::optional<TimeUnit> told)
{
    return SvcReader(input, told).Read();
}

} // namespace lumora::replay
