// What all kinds of recordings have in common once they are read.
#include "recording.h"
#include "number_text.h"

#include <algorithm>
#include <cmath>

namespace lumora::replay {

std::optional<std::string> CheckTime(double time, double first)
{
    constexpr std::string_view Advice = "; if its time is in another unit, --time-unit tells";
    if (std::abs(time) > MaxTime) {
        return "this sample's time is more than " + NumberText(MaxTime) + " ms" + std::string(Advice);
    }
    if (time - first > MaxDurationMs) {
        return "this sample comes more than 49 days after the first one" + std::string(Advice);
    }
    return std::nullopt;
}

void ScaleSharesOfPressure(std::vector<RecordedSample>& samples)
{
    const auto aboveOne = [](const RecordedSample& sample) { return sample.pressure > 1; };
    const auto between = [](const RecordedSample& sample) {
        return sample.pressure > 0 && sample.pressure < 1;
    };
    if (std::any_of(samples.begin(), samples.end(), aboveOne) ||
        std::none_of(samples.begin(), samples.end(), between)) {
        return;
    }
    for (RecordedSample& sample : samples) {
        sample.pressure *= FullPressure;
    }
}

} // namespace lumora::replay
