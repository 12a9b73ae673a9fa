// Strokes from samples.
#include "ink/stroke_feed.h"

namespace lumora_pen {

StrokeSteps StrokeFeed::Take(const InputBatch& batch)
{
    StrokeSteps steps;
    if (writer && *writer != batch.source) {
        return steps;
    }
    for (const InputSample& sample : batch.samples) {
        Add_(sample, batch.source, steps);
    }
    if (batch.isCancelled && writer) {
        const StrokeSteps end = End(last.time);
        steps.samples.insert(steps.samples.end(), end.samples.begin(), end.samples.end());
        steps.ends = true;
    }
    steps.isCancelled = batch.isCancelled && steps.ends;
    return steps;
}

void StrokeFeed::Add_(const InputSample& sample, Source source, StrokeSteps& steps)
{
    if (sample.pressure > 0) {
        if (!writer) {
            writer = source;
            steps.begins = true;
            steps.samples.push_back(sample); // and again below: a tap, too, is a line from point to point
        }
        last = sample;
        steps.samples.push_back(sample);
    } else if (writer) {
        writer.reset();
        steps.ends = true;
        steps.samples.push_back(sample);
    } else if (wantsHover) {
        steps.samples.push_back(sample);
    }
}

StrokeSteps StrokeFeed::End(std::uint32_t now)
{
    StrokeSteps steps;
    if (writer) {
        writer.reset();
        steps.ends = true;
        steps.samples.push_back({last.x, last.y, 0, now});
    }
    return steps;
}

StrokeSteps StrokeFeed::Rest(std::uint32_t now) const
{
    StrokeSteps steps;
    if (writer) {
        steps.samples.push_back({last.x, last.y, last.pressure, now});
    }
    return steps;
}

} // namespace lumora_pen
