// All monitors together.
#pragma once

#include "input/pixel_rectangle.h"

#include <windows.h>

namespace lumora_pen {

inline PixelRectangle VirtualScreen()
{
    const int left = GetSystemMetrics(SM_XVIRTUALSCREEN); // negative where a monitor is left of the first
    const int top = GetSystemMetrics(SM_YVIRTUALSCREEN);
    return {left, top, left + GetSystemMetrics(SM_CXVIRTUALSCREEN),
            top + GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

} // namespace lumora_pen
