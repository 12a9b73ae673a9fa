// Reads a recording from a file, whatever its format.
#pragma once

#include "recording.h"
#include "time_unit.h"

#include <filesystem>
#include <optional>

namespace lumora::replay {

// The content tells the format, not the name: what begins with '<' is InkML, all else is SVC. `told` is the
// unit of the file's times, whatever the file says of it.
RecordingResult ReadRecording(const std::filesystem::path& file, std::optional<TimeUnit> told = std::nullopt);

// "FILE:LINE: reason": the form that editors and terminals turn into a link.
std::string DescribeError(const std::string& fileName, const RecordingError& error);

} // namespace lumora::replay
