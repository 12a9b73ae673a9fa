// Text between the program, which keeps UTF-8, and the system.
#pragma once

#include <string>
#include <string_view>

namespace lumora_pen {

// What is no UTF-8, or no UTF-16, becomes the replacement character.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view text);

} // namespace lumora_pen
