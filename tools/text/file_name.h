// Names of files as UTF-8, which is what texts and command lines hold.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lumora::text {

// Throws std::system_error for what is no UTF-8 where the system has names in another form.
std::filesystem::path PathOf(std::string_view utf8);

// Empty where the system has a name that is no text.
std::string Utf8Of(const std::filesystem::path& path);

} // namespace lumora::text
