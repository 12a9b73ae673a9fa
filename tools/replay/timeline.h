// Which samples are due when: the recorded times, played slower or faster.
#pragma once

#include "strokes.h"

#include <optional>
#include <span>
#include <vector>

namespace lumora::replay {

class Timeline {
public:
    // `playSpeed` 2 plays twice as fast. The samples' times must not decrease.
    Timeline(const std::vector<TimedSample>& samples, double playSpeed);

    // The samples that have become due since the last call, oldest first; valid as long as the timeline.
    std::span<const LM_PenData> TakeDue(double nowMs);

    // When the next sample is due, in milliseconds since the play began; nothing after the last one.
    std::optional<double> NextDueMs() const;

    // When the last sample is due.
    double EndMs() const { return dueTimes.empty() ? 0 : dueTimes.back(); }

private:
    std::vector<LM_PenData> penData;
    std::vector<double> dueTimes;
    std::size_t next = 0;
};

} // namespace lumora::replay
