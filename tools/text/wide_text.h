// Text between the program, which keeps UTF-8, and the system.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumora::text {

// What is no UTF-8, or no UTF-16, becomes the replacement character.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view text);

// The arguments after the program's name.
std::vector<std::string> Utf8Arguments(int argc, wchar_t** argv);

} // namespace lumora::text
