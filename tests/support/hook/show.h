// How arguments of recorded calls read.
#pragma once

#include "support/hook/names.h"

#include <windows.h>

#include <initializer_list>
#include <string>
#include <type_traits>

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
std::string Show(const RECT* rectangle);
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

struct Field {
    const char* name; // may be empty
    double value;
};
std::string ShowFields(std::initializer_list<Field> fields); // "{x=1, y=2}"

} // namespace zq::LM::test
