// Pen samples with closed strokes.
#include "strokes.h"

#include <algorithm>

namespace lumora::replay {

namespace {

TimedSample MakePenSample(const RecordedSample& sample, std::uint32_t firstTime, ScreenPoint point)
{
    TimedSample timed;
    timed.recordedTime = sample.time - firstTime;
    timed.data.time = std::max<std::uint32_t>(sample.time, 1);
    timed.data.x = point.x;
    timed.data.y = point.y;
    timed.data.pressure = sample.touches ? std::max<std::int32_t>(sample.pressure, 1) : 0;
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
