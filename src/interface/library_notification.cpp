// What the library does when the system tells it of processes and threads.
#include "interface/library_notification.h"

#include "interface/instance.h"
#include "log/debug_log.h"
#include "platform/debug_switch.h"

namespace zq::LM {

namespace {

// The system refuses to hold back thread notifications from a library with thread-local storage, as a static
// runtime brings along: they then arrive and are dropped here.
bool g_threadsAreSilent = false;

void LogThreadLine(const wchar_t* line)
{
    if (!g_threadsAreSilent) {
        LogAtNormal(line);
    }
}

} // namespace

void HandleNotification(HMODULE module, DWORD reason)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        LogAtNormal(L"ul_reason_for_call = DLL_PROCESS_ATTACH\n");
        g_module = module;
        DisableThreadLibraryCalls(module);
        g_threadsAreSilent = true;
        if (DebugSwitch) {
            SetDebugLevel(BASIC);
        }
        break;
    case DLL_PROCESS_DETACH:
        LogAtNormal(L"ul_reason_for_call = DLL_PROCESS_DETACH\n");
        break;
    case DLL_THREAD_ATTACH:
        LogThreadLine(L"ul_reason_for_call = DLL_THREAD_ATTACH\n");
        break;
    case DLL_THREAD_DETACH:
        LogThreadLine(L"ul_reason_for_call = DLL_THREAD_DETACH\n");
        break;
    default:
        break;
    }
}

} // namespace zq::LM
