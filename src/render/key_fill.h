// Filling with one colour, as frames and cleared windows begin.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

// For client areas, whose left and top are 0: from another corner the fill would reach too far. False when
// nothing was painted; no other colour is ever painted instead.
bool FillRectangle(HDC dc, const RECT& rectangle, COLORREF colour);

// Fills a window's client area with the transparent key. Does nothing without a window.
void ClearWindowToKey(HWND window);

} // namespace zq::LM
