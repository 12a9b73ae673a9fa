// The colour of the screen under the mouse cursor.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

// 0 when the screen cannot be read.
COLORREF ColourUnderCursor();

} // namespace zq::LM
