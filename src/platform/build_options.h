// What a build of the library can be told by its build system.
#pragma once

namespace zq::LM {

// The debug switch: logs from process attach on, and leaves the user-interface switch to the code. Off in
// what ships.
#ifdef LUMORA_DEBUG_SWITCH
inline constexpr bool DebugSwitch = true;
#else
inline constexpr bool DebugSwitch = false;
#endif

} // namespace zq::LM
