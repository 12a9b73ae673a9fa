// The shell's desktop window, which says where the screen is.
#pragma once

#include "platform/win32/windows_header.h"

#include <optional>

namespace zq::LM {

// Nothing when there is no shell window.
std::optional<RECT> ShellWindowRect();
std::optional<RECT> ShellClientRect();

// Where the overlay lies, and what is drawn into, when there is none.
inline constexpr RECT ScreenWithoutShell = {0, 0, 256, 256};

} // namespace zq::LM
