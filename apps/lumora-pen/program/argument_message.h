// The options of a second start on their way to the first: UTF-8 arguments, each ended by a zero byte.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora_pen {

// More than any command line of the system's; a longer message is none of ours.
inline constexpr std::size_t MostArgumentBytes = 65'536;

std::string PackArguments(const std::vector<std::string>& arguments);

// Nothing when the bytes are no such message: anybody can send one.
std::optional<std::vector<std::string>> UnpackArguments(std::string_view bytes);

} // namespace lumora_pen
