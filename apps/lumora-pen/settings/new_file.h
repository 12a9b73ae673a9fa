// Writes a file that is not there yet, down to the disk: the standard library has no call for the latter.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace lumora_pen {

// What fails may leave a part of the file.
std::error_code WriteNewFile(const std::filesystem::path& file, std::string_view text);

} // namespace lumora_pen
