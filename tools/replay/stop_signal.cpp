// The console's control handler; it runs on a thread that the system makes.
#include "stop_signal.h"

namespace lumora::replay {

namespace {

HANDLE g_stopEvent = nullptr;

BOOL WINAPI OnConsoleControl(DWORD control)
{
    SetEvent(g_stopEvent);
    if (control == CTRL_CLOSE_EVENT) {
        // The system ends the process when this returns; the player needs the time to end cleanly.
        Sleep(INFINITE);
    }
    return TRUE;
}

} // namespace

StopSignal::StopSignal()
{
    g_stopEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    SetConsoleCtrlHandler(OnConsoleControl, TRUE);
}

StopSignal::~StopSignal()
{
    SetConsoleCtrlHandler(OnConsoleControl, FALSE);
    CloseHandle(g_stopEvent);
    g_stopEvent = nullptr;
}

HANDLE StopSignal::Event() const { return g_stopEvent; }

bool StopSignal::IsSet() const { return WaitForSingleObject(g_stopEvent, 0) == WAIT_OBJECT_0; }

} // namespace lumora::replay
