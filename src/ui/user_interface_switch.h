// Whether the next overlay window gets a user interface of its own.
#pragma once

namespace zq::LM {

// For the process; outlives instances. Read when a window is created, so a later change leaves that window
// alone.
inline bool g_userInterfaceSwitch = false;

} // namespace zq::LM
