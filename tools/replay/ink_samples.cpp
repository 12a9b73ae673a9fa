// Positions, pressures and times of InkML points, and what separates one trace from the next.
#include "ink_samples.h"
#include "number_text.h"

#include <algorithm>
#include <cmath>

namespace lumora::replay {

namespace {

constexpr double TenthsPerRadian = 1800 / 3.14159265358979323846;

std::optional<double> Value(const InkPoint& point, std::optional<std::size_t> column)
{
    return column ? point[*column] : std::nullopt;
}

std::optional<std::string> CheckRange(const std::string& channel, double value, double min, double max)
{
    // Written so that what is no number is out of range too.
    if (value >= min && value <= max) {
        return std::nullopt;
    }
    return "channel " + channel + " must be " + NumberText(min) + " to " + NumberText(max) + "; it is " +
           NumberText(value);
}

double AngleInTenths(const InkFormat& format, const InkPoint& point, std::optional<std::size_t> column)
{
    const std::optional<double> angle = Value(point, column);
    if (!angle) {
        return 0;
    }
    const bool radians = format.channels[*column].units == "rad";
    const double tenths = WithoutRoundingErrors(*angle * (radians ? TenthsPerRadian : TenthsPerDegree));
    return std::isfinite(tenths) ? std::clamp(tenths, -MaxPosition, MaxPosition) : 0;
}

} // namespace

std::optional<std::string> InkSamples::BeginTrace(InkTrace newTrace)
{
    trace = std::move(newTrace);
    empty = true;
    shiftMs = 0;
    lastValue = std::nullopt;
    const InkFormat& format = trace.format;
    const std::optional<std::size_t> x = format.Find("X");
    const std::optional<std::size_t> y = format.Find("Y");
    if (!x || !y) {
        return "the trace format has no channel " + std::string(x ? "Y" : "X");
    }
    columns = {
        *x, *y, format.Find("T"), format.Find("F"), format.Find("S"), format.Find("OA"), format.Find("OE")};
    return FindTimeUnit_();
}

std::optional<std::string> InkSamples::FindTimeUnit_()
{
    unit = told.value_or(TimeUnit::Milliseconds);
    const std::string units = columns.time ? trace.format.channels[*columns.time].units : "";
    if (told || units.empty()) {
        return std::nullopt;
    }
    const std::optional<TimeUnit> named = ParseTimeUnit(units);
    unit = named.value_or(unit);
    return named ? std::nullopt
                 : std::optional("the unit of channel T must be s, ms or us, not " + Quoted(units) +
                                 "; --time-unit tells it");
}

std::optional<std::string> InkSamples::Take(const InkPoint& point)
{
    if (!point[columns.x] || !point[columns.y]) {
        return std::nullopt; // a place that is not known cannot be shown
    }
    if (recording.samples.empty()) {
        recording.yUpwards = trace.format.channels[columns.y].reversed;
    }
    RecordedSample sample;
    if (auto reason = TakePosition_(point, sample)) {
        return reason;
    }
    if (auto reason = TakePressure_(point, sample)) {
        return reason;
    }
    if (auto reason = TakeTime_(point, sample)) {
        return reason;
    }
    sample.azimuth = AngleInTenths(trace.format, point, columns.azimuth);
    sample.altitude = AngleInTenths(trace.format, point, columns.elevation);
    if (empty) {
        EndStrokeBefore_(sample);
    }
    if (recording.samples.size() >= MaxSampleCount) {
        return "there are more than " + std::to_string(MaxSampleCount) + " samples";
    }
    recording.samples.push_back(sample);
    empty = false;
    return std::nullopt;
}

std::optional<std::string> InkSamples::TakePosition_(const InkPoint& point, RecordedSample& sample) const
{
    const double x = *point[columns.x];
    const double y = *point[columns.y];
    if (auto reason = CheckRange("X", x, -MaxPosition, MaxPosition)) {
        return reason;
    }
    sample.x = trace.format.channels[columns.x].reversed ? 0 - x : x;
    const bool upwards = trace.format.channels[columns.y].reversed;
    sample.y = upwards == recording.yUpwards ? y : 0 - y;
    return CheckRange("Y", y, -MaxPosition, MaxPosition);
}

std::optional<std::string> InkSamples::TakePressure_(const InkPoint& point, RecordedSample& sample)
{
    const std::optional<double> force = Value(point, columns.force);
    const std::optional<double> tip = Value(point, columns.tip);
    if (tip) {
        sample.touches = *tip != 0;
    } else if (trace.type == InkTrace::Type::Indeterminate) {
        sample.touches = !force || *force > 0;
    } else {
        sample.touches = trace.type == InkTrace::Type::PenDown;
    }
    if (!force) {
        sample.pressure = sample.touches ? FullPressure : 0;
        return std::nullopt;
    }
    const InkChannel& channel = trace.format.channels[*columns.force];
    if (!channel.max) {
        sample.pressure = *force;
        return CheckRange("F", *force, 0, MaxPressure);
    }
    fullPressureKnown = true;
    const double min = channel.min.value_or(0);
    const double range = *channel.max - min;
    // Without the detour where there is nothing to convert: it would round.
    sample.pressure = range == FullPressure ? *force - min : (*force - min) * FullPressure / range;
    return CheckRange("F", *force, min, *channel.max);
}

std::optional<std::string> InkSamples::TakeTime_(const InkPoint& point, RecordedSample& sample)
{
    const std::optional<double> value = Value(point, columns.time);
    if (!value) {
        const double begin = trace.beginMs ? Begin_(*trace.beginMs) : AfterAll_();
        sample.time = empty ? begin : recording.samples.back().time + trace.stepMs;
    } else {
        if (auto reason = CheckRange("T", *value, -MaxTime, MaxTime)) {
            return reason;
        }
        if (lastValue && *value < *lastValue) {
            return "time runs backwards: " + NumberText(*value) + " after " + NumberText(*lastValue);
        }
        const bool common = trace.format.channels[*columns.time].fromCommonOrigin;
        const double time = ToMilliseconds(*value, unit) + (common ? 0 : trace.beginMs.value_or(0));
        shiftMs = empty ? Begin_(time) - time : shiftMs;
        sample.time = time + shiftMs;
        lastValue = value;
    }
    if (recording.samples.empty()) {
        return CheckTime(sample.time, sample.time);
    }
    // Where the clock is too coarse for the step between them, adding up would go back a little.
    sample.time = std::max(sample.time, recording.samples.back().time);
    return CheckTime(sample.time, recording.samples.front().time);
}

// The time at which a trace begins that says it begins at `wanted`.
double InkSamples::Begin_(double wanted) const
{
    if (recording.samples.empty() || wanted >= recording.samples.back().time) {
        return wanted;
    }
    return AfterAll_();
}

double InkSamples::AfterAll_() const
{
    if (recording.samples.empty()) {
        return 0;
    }
    return recording.samples.back().time + (trace.continues ? trace.stepMs : InkPauseMs);
}

// Two strokes that would look like one have a hovering sample between them.
void InkSamples::EndStrokeBefore_(const RecordedSample& sample)
{
    if (recording.samples.empty()) {
        return;
    }
    const RecordedSample& last = recording.samples.back();
    const bool joins = last.touches && sample.touches && sample.time - last.time <= StrokeGapMs;
    if (joins && !trace.continues) {
        RecordedSample end = last;
        end.touches = false;
        end.pressure = 0;
        recording.samples.push_back(end);
    }
}

Recording InkSamples::Finish()
{
    if (!fullPressureKnown) {
        ScaleSharesOfPressure(recording.samples);
    }
    const double earliest = recording.samples.empty() ? 0 : std::min(recording.samples.front().time, 0.0);
    for (RecordedSample& sample : recording.samples) {
        sample.time -= earliest;
    }
    return std::move(recording);
}

} // namespace lumora::replay
