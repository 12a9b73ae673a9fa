// Writes a recording beside the place where it is to be, then moves it there.
#include "save_recording.h"
#include "inkml.h"
#include "svc.h"

#include <algorithm>
#include <fstream>

namespace lumora::replay {

namespace {

bool EndsWithIgnoringCase(std::string_view text, std::string_view end)
{
    const auto same = [](char a, char b) { return a == b || (a >= 'A' && a <= 'Z' && (a | 0x20) == b); };
    return text.size() >= end.size() &&
           std::equal(end.begin(), end.end(), text.end() - static_cast<std::ptrdiff_t>(end.size()),
                      [same](char wanted, char written) { return same(written, wanted); });
}

bool WriteTo(const std::filesystem::path& file, const Recording& recording, RecordingFormat format)
{
    std::ofstream output(file, std::ios::binary);
    if (format == RecordingFormat::Svc) {
        WriteSvc(recording, output);
    } else {
        WriteInkml(recording, output);
    }
    output.close();
    return output.good();
}

} // namespace

std::optional<RecordingFormat> FormatOf(std::string_view fileName)
{
    if (EndsWithIgnoringCase(fileName, ".svc")) {
        return RecordingFormat::Svc;
    }
    return EndsWithIgnoringCase(fileName, ".inkml") ? std::optional(RecordingFormat::Inkml) : std::nullopt;
}

std::optional<std::string> SaveRecording(const Recording& recording, const std::filesystem::path& file,
                                         RecordingFormat format, bool overwrite)
{
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        return "it is a folder";
    }
    if (!overwrite && std::filesystem::exists(file, error)) {
        return "there is such a file already (--overwrite replaces it)";
    }
    std::filesystem::path part = file;
    part += ".part";
    if (std::filesystem::exists(part, error)) {
        return "a file of its name with \".part\" at the end is in the way";
    }
    if (!WriteTo(part, recording, format)) {
        std::filesystem::remove(part, error);
        return "it cannot be written";
    }
    std::filesystem::rename(part, file, error);
    if (error) {
        std::filesystem::remove(part, error);
        return "it cannot be written";
    }
    return std::nullopt;
}

} // namespace lumora::replay
