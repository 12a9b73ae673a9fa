// The walk through a recording's samples by time.
#include "timeline.h"

namespace lumora::replay {

Timeline::Timeline(const std::vector<TimedSample>& samples, double playSpeed)
{
    for (const TimedSample& sample : samples) {
        penData.push_back(sample.data);
        dueTimes.push_back(sample.recordedTime / playSpeed);
    }
}

std::span<const LM_PenData> Timeline::TakeDue(double nowMs)
{
    const std::size_t first = next;
    while (next < dueTimes.size() && dueTimes[next] <= nowMs) {
        ++next;
    }
    return std::span<const LM_PenData>(penData).subspan(first, next - first);
}

std::optional<double> Timeline::NextDueMs() const
{
    return next < dueTimes.size() ? std::optional<double>(dueTimes[next]) : std::nullopt;
}

} // namespace lumora::replay
