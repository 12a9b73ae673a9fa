// Reads a recording from a file, whatever its format.
#pragma once

#include "recording.h"

#include <filesystem>

namespace lumora::replay {

// Every file is read as SVC, the only format there is so far.
RecordingResult ReadRecording(const std::filesystem::path& file);

// "FILE:LINE: reason": the form that editors and terminals turn into a link.
std::string DescribeError(const std::string& fileName, const RecordingError& error);

} // namespace lumora::replay
