// What the library does when the system tells it of processes and threads.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

// `reason` is the entry point's; numbers that it does not know are ignored.
void HandleNotification(HMODULE module, DWORD reason);

} // namespace zq::LM
