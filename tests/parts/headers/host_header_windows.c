/* The host's header beside Windows' own, in either order, in C99 and in C++. Compiled, never linked. */
#ifdef WINDOWS_HEADER_FIRST
#include <windows.h>

#include "lumora/lumora.h"
#else
#include "lumora/lumora.h"

#include <windows.h>
#endif

HWND CreateAndShow(void);

HWND CreateAndShow(void)
{
    HWND window = LM_Create();
    LM_WindowHandle handle = window;
    ShowWindow(handle, SW_SHOW);
    return LM_GetWindowHandle();
}
