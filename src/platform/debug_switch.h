// The debug switch, which is chosen when a library is linked.
#pragma once

namespace zq::LM {

// On: logs from process attach on, and leaves the user-interface switch to the code. Off in what ships.
extern const bool DebugSwitch;

} // namespace zq::LM
