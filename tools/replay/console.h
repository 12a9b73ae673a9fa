// What is said on the console.
#pragma once

#include <string_view>

namespace lumora::replay {

enum class Channel { Output, Error };

// Writes one text and a line end; readable in a console whatever its code page, UTF-8 in a file or pipe.
void PrintLine(Channel channel, std::string_view utf8);

} // namespace lumora::replay
