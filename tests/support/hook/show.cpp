// How arguments of recorded calls read.
#include "support/hook/show.h"

#include <objbase.h>

#include <cstdio>
#include <sstream>
#include <string_view>

namespace zq::LM::test {

std::string Narrow(const wchar_t* text)
{
    std::string narrow;
    for (const wchar_t character : std::wstring_view(text)) {
        narrow += character < 0x80 ? static_cast<char>(character) : '?';
    }
    return narrow;
}

std::string ShowNumber(long long number)
{
    constexpr long long FirstHexadecimal = 0x10000;
    char text[32];
    std::snprintf(text, sizeof(text), number < FirstHexadecimal ? "%lld" : "0x%llX", number);
    return text;
}

std::string ShowNumber(double number)
{
    std::ostringstream text;
    text << number;
    return text.str();
}

std::string Show(const wchar_t* text)
{
    if (text == nullptr) {
        return "null";
    }
    if (IS_INTRESOURCE(text)) {
        return '#' + ShowNumber(static_cast<long long>(reinterpret_cast<ULONG_PTR>(text)));
    }
    return '"' + Narrow(text) + '"';
}

std::string Show(const char* text) { return text == nullptr ? "null" : '"' + std::string(text) + '"'; }

std::string Show(const WNDCLASSEXW* description) { return Show(description->lpszClassName); }

std::string Show(const GUID& id)
{
    constexpr int Length = 39;
    wchar_t text[Length] = {};
    StringFromGUID2(id, text, Length);
    return Narrow(text);
}

std::string Show(const RECT* place)
{
    return place == nullptr ? "null" : ShowFields("", place->left, place->top, place->right, place->bottom);
}

std::string ShowList(const std::string& names, const std::vector<double>& values)
{
    std::istringstream unused(names);
    std::ostringstream text;
    const char* separator = "{";
    for (const double value : values) {
        std::string name;
        text << separator << (unused >> name ? name + "=" : "") << value;
        separator = ", ";
    }
    text << '}';
    return text.str();
}

} // namespace zq::LM::test
