// The colour of the screen under the mouse cursor.
#include "render/screen_colour.h"

#include "platform/win32/gdi_owners.h"

namespace zq::LM {

COLORREF ColourUnderCursor()
{
    const WindowDC desktop(GetDesktopWindow());
    if (desktop.Get() == nullptr) {
        return 0;
    }
    POINT cursor{};
    GetCursorPos(&cursor);
    return GetPixel(desktop.Get(), cursor.x, cursor.y);
}

} // namespace zq::LM
