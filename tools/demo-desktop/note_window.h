// An ordinary window with some text, which counts the clicks that reach it.
#pragma once

#include <windows.h>

namespace lumora::demo {

HWND CreateNoteWindow(HINSTANCE instance);

} // namespace lumora::demo
