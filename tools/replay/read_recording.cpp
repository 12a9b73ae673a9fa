// Opens a recording and hands it to the reader of its format.
#include "read_recording.h"
#include "inkml.h"
#include "svc.h"

#include <fstream>
#include <string_view>

namespace lumora::replay {

namespace {

// Enough for the mark of an encoding, a few blank lines and the first character.
std::string BeginningOf(std::istream& input)
{
    constexpr std::size_t Bytes = 256;
    std::string beginning(Bytes, '\0');
    input.read(beginning.data(), Bytes);
    beginning.resize(static_cast<std::size_t>(input.gcount()));
    input.clear();
    input.seekg(0);
    return beginning;
}

bool IsUtf16(std::string_view beginning)
{
    return beginning.starts_with("\xFF\xFE") || beginning.starts_with("\xFE\xFF");
}

bool IsXml(std::string_view beginning)
{
    beginning.remove_prefix(beginning.starts_with(Utf8Mark) ? Utf8Mark.size() : 0);
    const std::size_t first = beginning.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && beginning[first] == '<';
}

} // namespace

RecordingResult ReadRecording(const std::filesystem::path& file, std::optional<TimeUnit> told)
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
    const std::string beginning = BeginningOf(input);
    if (IsUtf16(beginning)) {
        return RecordingError{1, "the file is UTF-16 text; only UTF-8 is read"};
    }
    return IsXml(beginning) ? ReadInkml(input, told) : ReadSvc(input, told);
}

std::string DescribeError(const std::string& fileName, const RecordingError& error)
{
    return fileName + ":" + std::to_string(error.line) + ": " + error.reason;
}

} // namespace lumora::replay
