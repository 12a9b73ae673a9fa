// The window that stands for the desktop: it covers the screen, and is the shell's where there is none yet.
#pragma once

#include <windows.h>

namespace lumora::demo {

// Null when the window cannot be made, or cannot become the shell window though there is none.
HWND CreateDesktopWindow(HINSTANCE instance);

} // namespace lumora::demo
