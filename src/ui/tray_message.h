// The message by which the shell tells the overlay window of the mouse on the tray icon.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

inline constexpr UINT TrayMessage = WM_APP + 46; // also the icon's identifier

} // namespace zq::LM
