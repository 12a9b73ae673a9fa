// How arguments of recorded calls read.
#pragma once

#include "support/hook/names.h"

#include <windows.h>

#include <string>
#include <type_traits>
#include <vector>

namespace zq::LM::test {

// ASCII alone: what else there is becomes a question mark.
std::string Narrow(const wchar_t* text);

// Whole numbers are decimal, larger ones (colours, raster operations, styles) hexadecimal.
std::string ShowNumber(long long number);
std::string ShowNumber(double number);

std::string Show(const wchar_t* text); // in quotes; a resource's number as "#5"
std::string Show(const char* text);
std::string Show(const WNDCLASSEXW* description); // by its name
std::string Show(const GUID& id);
std::string Show(const RECT* place);
inline std::string Show(HWND window) { return NameOf(window); }

template <typename Value>
requires(std::is_arithmetic_v<Value> || std::is_enum_v<Value>) std::string Show(Value value)
{
    if constexpr (std::is_floating_point_v<Value>) {
        return ShowNumber(static_cast<double>(value));
    } else {
        return ShowNumber(static_cast<long long>(value));
    }
}

// Every other pointer or handle by its name.
template <typename Value> std::string Show(Value* pointer)
{
    return NameOf(reinterpret_cast<const void*>(pointer));
}

std::string ShowList(const std::string& names, const std::vector<double>& values);

// "{x=1, y=2}" by "x y" and the values, and "{1, 2}" without names.
template <typename... Values> std::string ShowFields(const char* names, Values... values)
{
    return ShowList(names, {static_cast<double>(values)...});
}

} // namespace zq::LM::test
