// The time that a soak measures and waits by.
#pragma once

#include <windows.h>

namespace zq::LM::soak {

inline double Seconds()
{
    LARGE_INTEGER frequency = {};
    LARGE_INTEGER ticks = {};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&ticks);
    return static_cast<double>(ticks.QuadPart) / static_cast<double>(frequency.QuadPart);
}

} // namespace zq::LM::soak
