// The window that stands for the desktop: it covers the screen and is registered as the shell's.
#pragma once

#include <windows.h>

namespace lumora::demo {

// Null when the window cannot be made or cannot become the shell window.
HWND CreateDesktopWindow(HINSTANCE instance);

} // namespace lumora::demo
