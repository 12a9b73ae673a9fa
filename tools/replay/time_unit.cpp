// Conversion of times to milliseconds, and the guess at a unit that nobody has named.
#include "time_unit.h"
#include "number_text.h"

#include <algorithm>
#include <numeric>

namespace lumora::replay {

std::optional<TimeUnit> ParseTimeUnit(std::string_view text)
{
    if (text == "s") {
        return TimeUnit::Seconds;
    }
    if (text == "ms") {
        return TimeUnit::Milliseconds;
    }
    return text == "us" ? std::optional<TimeUnit>(TimeUnit::Microseconds) : std::nullopt;
}

double ToMilliseconds(double time, TimeUnit unit)
{
    switch (unit) {
    case TimeUnit::Seconds:
        return WithoutRoundingErrors(time * 1000);
    case TimeUnit::Microseconds:
        return time / 1000;
    case TimeUnit::Milliseconds:
        break;
    }
    return time;
}

TimeUnit GuessTimeUnit(const std::vector<RecordedSample>& samples)
{
    constexpr double LongestStepInSeconds = 0.2;
    constexpr double ShortestStepInMicroseconds = 500;
    constexpr std::size_t StepsForMicroseconds = 10;

    std::vector<double> steps;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        steps.push_back(samples[i].time - samples[i - 1].time);
    }
    // Without a step every unit plays the same.
    if (steps.empty() || samples.back().time == samples.front().time) {
        return TimeUnit::Milliseconds;
    }
    const std::size_t kept = steps.size() - steps.size() / 10;
    const auto end = steps.begin() + static_cast<std::ptrdiff_t>(kept);
    std::nth_element(steps.begin(), end - 1, steps.end());
    const double typical = std::accumulate(steps.begin(), end, 0.0) / static_cast<double>(kept);
    if (typical < LongestStepInSeconds) {
        return TimeUnit::Seconds;
    }
    const bool enough = steps.size() >= StepsForMicroseconds;
    return enough && typical >= ShortestStepInMicroseconds ? TimeUnit::Microseconds : TimeUnit::Milliseconds;
}

} // namespace lumora::replay
