// A recording of pen samples as it was read from a file, in the units of the tablet that made it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <variant>
#include <vector>

namespace lumora::replay {

struct RecordedSample {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::uint32_t time = 0; // milliseconds, from any origin
    std::int32_t pressure = 0;
    bool touches = false;
};

struct Recording {
    std::vector<RecordedSample> samples;
    bool yUpwards = false;
};

// Line 0 means that the file as a whole is the reason.
struct RecordingError {
    std::size_t line = 0;
    std::string reason;
};

using RecordingResult = std::variant<Recording, RecordingError>;

// More than twenty hours of writing: a larger number on the count line is a damaged file.
inline constexpr std::int64_t MaxSampleCount = 10'000'000;

// Reads an SVC file: comment lines that begin with '#', the number of samples, then at least so many samples,
// one a line: x, y (upwards), time in milliseconds, 1 = touches or 0 = hovers, azimuth, altitude, pressure.
RecordingResult ReadSvc(std::istream& input);

} // namespace lumora::replay
