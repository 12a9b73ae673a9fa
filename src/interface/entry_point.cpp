// The library's entry point.
#include "interface/library_notification.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    zq::LM::HandleNotification(module, reason);
    return TRUE;
}
