// Texts of others within a line of one's own.
#pragma once

#include <algorithm>
#include <string>

namespace lumora::text {

// Line ends and other control characters become question marks.
inline std::string OnOneLine(std::string text)
{
    const auto isControl = [](unsigned char character) { return character < ' '; };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return text;
}

} // namespace lumora::text
