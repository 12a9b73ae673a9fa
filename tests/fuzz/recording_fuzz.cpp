// Any bytes as a recording, SVC and InkML: what is read can be played, and saved and read again as the same.
#include "inkml.h"
#include "strokes.h"
#include "svc.h"
#include "timeline.h"

#include "fuzz/fuzz_target.h"

#include <algorithm>
#include <sstream>

namespace lumora::replay {

namespace {

bool IsIn(double value, double min, double max) { return value >= min && value <= max; }

void RequireWithinLimits(const std::vector<RecordedSample>& samples)
{
    double last = 0;
    for (const RecordedSample& sample : samples) {
        Require(IsIn(sample.x, -MaxPosition, MaxPosition), "x is out of range");
        Require(IsIn(sample.y, -MaxPosition, MaxPosition), "y is out of range");
        Require(IsIn(sample.pressure, 0, MaxPressure), "the pressure is out of range");
        Require(IsIn(sample.time, last, samples.front().time + MaxDurationMs), "time is out of order");
        last = sample.time;
    }
}

constexpr ScreenSize Screen = {1920, 1080};

// What the library is given: all of it, on the screen, in order of time, and no stroke without an end.
void RequirePlayable(const Recording& recording, const Placement& placement)
{
    Timeline timeline(MakePenSamples(recording, placement), 1);
    std::size_t played = 0;
    bool writes = false;
    double last = 0;
    while (const auto due = timeline.NextDueMs()) {
        Require(IsIn(*due, last, MaxDurationMs), "a sample is not due in order of time");
        last = *due;
        const auto samples = timeline.TakeDue(*due);
        Require(!samples.empty(), "nothing is due");
        for (const LM_PenData& sample : samples) {
            Require(IsIn(sample.x, 1, Screen.width - 1) && IsIn(sample.y, 1, Screen.height - 1),
                    "a sample is beside the screen");
            Require(sample.time != 0 && sample.pressure >= 0, "a sample is a reset, or presses backwards");
            writes = sample.pressure > 0;
        }
        played += samples.size();
    }
    Require(!writes, "the last stroke has no end");
    Require(played >= recording.samples.size(), "a sample is not played");
}

// Angles are converted on the way, and pressures may be taken for shares: they are left out.
bool Same(const RecordedSample& a, const RecordedSample& b)
{
    return a.x == b.x && a.y == b.y && a.time == b.time && a.touches == b.touches;
}

void RequireSame(const Recording& recording, const RecordingResult& again, const char* format)
{
    const auto* other = std::get_if<Recording>(&again);
    Require(other != nullptr, format);
    const bool same = recording.yUpwards == other->yUpwards &&
                      std::equal(recording.samples.begin(), recording.samples.end(), other->samples.begin(),
                                 other->samples.end(), Same);
    Require(same, format);
}

void Check(const RecordingResult& result)
{
    const auto* recording = std::get_if<Recording>(&result);
    if (recording == nullptr) {
        return;
    }
    RequireWithinLimits(recording->samples);
    RequirePlayable(*recording, Placement(*recording, Screen));
    RequirePlayable(*recording, Placement::OfPixels(recording->yUpwards, Screen));
    std::stringstream inkml;
    WriteInkml(*recording, inkml);
    RequireSame(*recording, ReadInkml(inkml), "another recording after InkML");
    if (recording->yUpwards) {
        std::stringstream svc;
        WriteSvc(*recording, svc);
        RequireSame(*recording, ReadSvc(svc), "another recording after SVC");
    }
}

} // namespace

} // namespace lumora::replay

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lumora::replay;
    const std::string text(reinterpret_cast<const char*>(data), size);
    // With the unit of time that the file says or suggests, and with one that somebody has told.
    const auto told = static_cast<TimeUnit>(size % 3);
    for (const std::optional<TimeUnit> unit : {std::optional<TimeUnit>(), std::optional(told)}) {
        std::istringstream svc(text);
        Check(ReadSvc(svc, unit));
        std::istringstream inkml(text);
        Check(ReadInkml(inkml, unit));
    }
    return 0;
}
