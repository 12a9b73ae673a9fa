// The debug switch. Its two objects are all that the two libraries differ in.
#include "platform/debug_switch.h"

namespace zq::LM {

const bool DebugSwitch = LUMORA_DEBUG_SWITCH;

} // namespace zq::LM
