// UTF-8 in and out: the console's texts and the command line's arguments.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::replay {

enum class Channel { Output, Error };

// Writes one text and a line end; readable in a console whatever its code page, UTF-8 in a file or pipe.
void PrintLine(Channel channel, std::string_view text);

std::string ToUtf8(std::wstring_view text);
std::wstring ToWide(std::string_view utf8);

// The arguments after the program's name.
std::vector<std::string> Utf8Arguments(int argc, wchar_t** argv);

std::filesystem::path PathOf(std::string_view utf8);

} // namespace lumora::replay
