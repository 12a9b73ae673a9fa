// The units in which recordings give times.
#pragma once

#include "recording.h"

#include <optional>
#include <string_view>

namespace lumora::replay {

enum class TimeUnit { Seconds, Milliseconds, Microseconds };

// "s", "ms" or "us".
std::optional<TimeUnit> ParseTimeUnit(std::string_view text);

double ToMilliseconds(double time, TimeUnit unit);

// Tablets report some ten to a thousand samples a second, so the typical step between two samples tells the
// unit: the mean of all steps but the longest tenth, which are pauses. Below 0.2 it is seconds; 500 and more
// are microseconds, if there are ten steps at least; all else is milliseconds.
TimeUnit GuessTimeUnit(const std::vector<RecordedSample>& samples);

} // namespace lumora::replay
