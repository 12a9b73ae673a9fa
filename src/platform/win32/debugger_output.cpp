// The debugger's output channel of Windows.
#include "platform/debugger_output.h"

#include <windows.h>

namespace zq::LM {

void WriteToDebugger(const wchar_t* text) { OutputDebugStringW(text); }

void WriteToDebugger(const char* text) { OutputDebugStringA(text); }

} // namespace zq::LM
