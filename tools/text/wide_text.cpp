// UTF-8 and UTF-16.
#include "text/wide_text.h"

#include <windows.h>

namespace lumora::text {

std::wstring ToWide(std::string_view utf8)
{
    std::wstring text(utf8.size(), L'\0'); // never more units than bytes
    const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), text.data(),
                                         static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(size));
    return text;
}

std::string ToUtf8(std::wstring_view text)
{
    constexpr std::size_t MostBytesOfAUnit = 3;
    std::string utf8(MostBytesOfAUnit * text.size(), '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), utf8.data(),
                                         static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(size));
    return utf8;
}

std::vector<std::string> Utf8Arguments(int argc, wchar_t** argv)
{
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(ToUtf8(argv[i]));
    }
    return arguments;
}

} // namespace lumora::text
