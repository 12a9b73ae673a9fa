// The millisecond clock of Windows.
#include "platform/clock.h"

#include <windows.h>

#include <mmsystem.h>

namespace zq::LM {

std::uint32_t MillisecondClock() { return timeGetTime(); }

} // namespace zq::LM
