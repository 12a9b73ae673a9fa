// The debugger's output channel: one of the two seams to the system.
#pragma once

namespace zq::LM {

// Wide and narrow texts stay apart because the system has a channel call of its own for each.
void WriteToDebugger(const wchar_t* text);
void WriteToDebugger(const char* text);

} // namespace zq::LM
