// Opens a recording and hands it to the reader of its format.
#include "read_recording.h"

#include <fstream>

namespace lumora::replay {

RecordingResult ReadRecording(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) {
        return RecordingError{0, "is a folder, not a recording"};
    }
    std::ifstream input(file, std::ios::binary);
    if (!input) {
        const bool exists = std::filesystem::exists(file, ignored);
        return RecordingError{0, exists ? "the file cannot be opened" : "there is no such file"};
    }
    return ReadSvc(input);
}

std::string DescribeError(const std::string& fileName, const RecordingError& error)
{
    return fileName + ":" + std::to_string(error.line) + ": " + error.reason;
}

} // namespace lumora::replay
