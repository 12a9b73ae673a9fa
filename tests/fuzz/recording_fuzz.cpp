// Any bytes as a recording, SVC and InkML: what is read can be played, and saved and read again as the same.
#include "inkml.h"
#include "svc.h"

#include "fuzz/fuzz_target.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace lumora::replay {

namespace {

void Require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "recording: %s\n", what);
        std::abort();
    }
}

bool IsIn(double value, double min, double max) { return value >= min && value <= max; }

void RequirePlayable(const std::vector<RecordedSample>& samples)
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
    RequirePlayable(recording->samples);
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
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::istringstream svc(text);
    lumora::replay::Check(lumora::replay::ReadSvc(svc));
    std::istringstream inkml(text);
    lumora::replay::Check(lumora::replay::ReadInkml(inkml));
    return 0;
}
