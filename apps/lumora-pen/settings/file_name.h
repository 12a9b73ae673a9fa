// Names of files as UTF-8, which is what texts and command lines hold.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lumora_pen {

std::filesystem::path PathOf(std::string_view utf8);

// Empty where the system has a name that is no text.
std::string TextOf(const std::filesystem::path& path);

} // namespace lumora_pen
