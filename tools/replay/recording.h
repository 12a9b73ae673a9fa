// A recording of pen samples as it was read from a file, in the units of the tablet that made it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lumora::replay {

// Some programs begin a file with it.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

inline constexpr double TenthsPerDegree = 10;

struct RecordedSample {
    double x = 0;
    double y = 0;
    double time = 0;     // milliseconds, from any origin, never negative
    double pressure = 0; // 0 to FullPressure where the file says what is full, else as it stands there
    bool touches = false;
    double azimuth = 0;  // tenths of a degree; kept for the file that is saved
    double altitude = 0; // likewise
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
inline constexpr std::size_t MaxSampleCount = 10'000'000;

// 49 days: a recording that lasts longer has a damaged time or one in another unit.
inline constexpr double MaxDurationMs = 4'294'967'295;

// Whole numbers up to here are exact.
inline constexpr double MaxTime = 9'007'199'254'740'991;

inline constexpr double MaxPosition = 2'147'483'648; // to either side of 0
inline constexpr double MaxPressure = 2'147'483'647;

// What the library takes for full unless it is told otherwise.
inline constexpr double FullPressure = 32767;

// A tablet reports a touching pen many times a second: after a gap longer than this a new stroke begins.
inline constexpr double StrokeGapMs = 1000;

// What is wrong with the time of a sample in a recording that begins at `first`, if anything.
std::optional<std::string> CheckTime(double time, double first);

// Pressures that are shares of the full one, some of them between 0 and 1 and none above, become parts of
// FullPressure.
void ScaleSharesOfPressure(std::vector<RecordedSample>& samples);

} // namespace lumora::replay
