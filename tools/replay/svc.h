// SVC recordings: the text files of tablets and of handwriting research.
#pragma once

#include "recording.h"
#include "time_unit.h"

#include <iosfwd>
#include <optional>

namespace lumora::replay {

// Comment lines that begin with '#', the number of samples, then at least so many samples, one a line: x, y
// (upwards), time, 1 = touches or 0 = hovers, azimuth, altitude, pressure. The times are in `told`, or in the
// unit that a comment "# time-unit: s" names, or in the one that the steps between the samples suggest.
RecordingResult ReadSvc(std::istream& input, std::optional<TimeUnit> told = std::nullopt);

// Writes times in milliseconds, and y upwards. What ReadSvc reads from it is the same recording.
void WriteSvc(const Recording& recording, std::ostream& output);

} // namespace lumora::replay
