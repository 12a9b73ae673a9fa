// The host's header beside Windows' own, in either order: one window handle type. Compiled, never linked.
#ifdef WINDOWS_HEADER_FIRST
#include <windows.h>

#include "lumora/lumora.h"
#else
#include "lumora/lumora.h"

#include <windows.h>
#endif

#include <type_traits>

static_assert(std::is_same_v<HWND, LM_WindowHandle>);

HWND CreateAndShow()
{
    const HWND window = LM_Create();
    const LM_WindowHandle handle = window;
    ShowWindow(handle, SW_SHOW);
    return LM_GetWindowHandle();
}
