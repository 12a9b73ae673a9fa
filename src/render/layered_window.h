// A layered window's opacity and the colour that it lets through.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

// SetLayeredWindowAttributes with this key. False when the window does not let it through.
bool LetKeyThrough(HWND window, COLORREF key, BYTE opacity, DWORD flags);

} // namespace zq::LM
