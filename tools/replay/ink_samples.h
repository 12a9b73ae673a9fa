// Turns the points of InkML traces into the samples of one recording.
#pragma once

#include "ink_points.h"
#include "recording.h"
#include "time_unit.h"

#include <optional>
#include <string>

namespace lumora::replay {

// Between the points of traces without times: 125 a second.
inline constexpr double DefaultInkStepMs = 8;

// Before a trace that has no time of its own, or one at which the trace before it is not yet over.
inline constexpr double InkPauseMs = 200;

struct InkTrace {
    enum class Type { PenDown, PenUp, Indeterminate };

    Type type = Type::PenDown;
    bool continues = false; // goes on with the stroke of the trace before
    std::optional<double> beginMs;
    double stepMs = DefaultInkStepMs; // where there is no channel T
    InkFormat format;
};

class InkSamples {
public:
    explicit InkSamples(std::optional<TimeUnit> toldUnit) : told(toldUnit) {}

    // Returns what of the trace's format cannot be used, if anything.
    std::optional<std::string> BeginTrace(InkTrace newTrace);

    // The next point of the trace. Returns what is wrong with it, if anything.
    std::optional<std::string> Take(const InkPoint& point);

    Recording Finish();

private:
    // Where in a point a channel is, if the format has it.
    struct Columns {
        std::size_t x = 0;
        std::size_t y = 0;
        std::optional<std::size_t> time;
        std::optional<std::size_t> force;
        std::optional<std::size_t> tip;
        std::optional<std::size_t> azimuth;
        std::optional<std::size_t> elevation;
    };

    std::optional<std::string> FindTimeUnit_();
    std::optional<std::string> TakePosition_(const InkPoint& point, RecordedSample& sample) const;
    std::optional<std::string> TakePressure_(const InkPoint& point, RecordedSample& sample);
    std::optional<std::string> TakeTime_(const InkPoint& point, RecordedSample& sample);
    double Begin_(double wanted) const;
    double AfterAll_() const;
    void EndStrokeBefore_(const RecordedSample& sample);

    std::optional<TimeUnit> told;
    Recording recording;
    bool fullPressureKnown = false;

    InkTrace trace;
    Columns columns;
    TimeUnit unit = TimeUnit::Milliseconds;
    bool empty = true;               // the trace has no sample yet
    double shiftMs = 0;              // makes room for the trace behind the one before
    std::optional<double> lastValue; // of the trace's channel T
};

} // namespace lumora::replay
