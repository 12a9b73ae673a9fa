// While the system waits whether a touch becomes a press-and-hold or a flick, it holds the beginning of the
// stroke back.
#pragma once

#include <windows.h>

namespace lumora_pen {

// Switches that off for a window, with the rings and ripples at pen and finger, where the system has them.
void SwitchPressAndHoldOff(HWND window);
void ForgetPressAndHold(HWND window); // before the window goes

// The answer to WM_TABLET_QUERYSYSTEMGESTURESTATUS, which services send that do not look for the property.
LRESULT PressAndHoldAnswer();

} // namespace lumora_pen
