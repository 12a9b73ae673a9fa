// Saves a recording to a file.
#pragma once

#include "recording.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lumora::replay {

enum class RecordingFormat { Svc, Inkml };

// The format that the end of a file's name tells: ".svc" or ".inkml", in capitals or not.
std::optional<RecordingFormat> FormatOf(std::string_view fileName);

// The file is complete or untouched. Returns why it could not be saved, if so.
std::optional<std::string> SaveRecording(const Recording& recording, const std::filesystem::path& file,
                                         RecordingFormat format, bool overwrite);

} // namespace lumora::replay
