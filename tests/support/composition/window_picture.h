// Shows a frame as a window's picture on the screen.
#pragma once

#include "support/composition/pixel_reader.h"

namespace zq::LM::test {

// Over the whole window, stretched if need be, with its alpha above whatever lies below. The window must be a
// layered one; clicks pass where it lets them.
void ShowFrame(HWND window, const Frame& frame);

// Nothing but what lies below.
void ShowNothing(HWND window);

} // namespace zq::LM::test
