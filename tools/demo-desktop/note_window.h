// An ordinary window with some text, which counts the clicks that reach it.
#pragma once

#include <windows.h>

namespace lumora::demo {

// `hint` is shown below the text; it must outlive the window.
HWND CreateNoteWindow(HINSTANCE instance, const wchar_t* hint);

} // namespace lumora::demo
