// Pen samples with closed strokes.
#include "strokes.h"

#include <algorithm>
#include <cmath>

namespace lumora::replay {

namespace {

// The library counts milliseconds in 32 bits, as the system's own tick does, and takes 0 for a reset.
std::uint32_t LibraryTime(double milliseconds)
{
    const auto wrapped = static_cast<std::uint32_t>(static_cast<std::uint64_t>(milliseconds));
    return std::max<std::uint32_t>(wrapped, 1);
}

TimedSample MakePenSample(const RecordedSample& sample, double firstTime, ScreenPoint point)
{
    TimedSample timed;
    timed.recordedTime = sample.time - firstTime;
    timed.data.time = LibraryTime(sample.time);
    timed.data.x = point.x;
    timed.data.y = point.y;
    timed.data.pressure =
        sample.touches ? static_cast<std::int32_t>(std::max(std::round(sample.pressure), 1.0)) : 0;
    return timed;
}

} // namespace

std::vector<TimedSample> MakePenSamples(const Recording& recording, const Placement& placement)
{
    std::vector<TimedSample> made;
    const std::vector<RecordedSample>& samples = recording.samples;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        made.push_back(MakePenSample(samples[i], samples.front().time, placement.Place(samples[i])));
        const bool last = i + 1 == samples.size();
        if (samples[i].touches && (last || samples[i + 1].time - samples[i].time > StrokeGapMs)) {
            TimedSample end = made.back();
            end.data.pressure = 0;
            made.push_back(end);
        }
    }
    return made;
}

} // namespace lumora::replay
