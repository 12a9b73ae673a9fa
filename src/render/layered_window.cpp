// A layered window's opacity and the colour that it lets through.
#include "render/layered_window.h"

namespace zq::LM {

// What was set before still holds where setting it again has failed.
bool LetKeyThrough(HWND window, COLORREF key, BYTE opacity, DWORD flags)
{
    if (SetLayeredWindowAttributes(window, key, opacity, flags) != 0) {
        return true;
    }
    DWORD held = 0;
    return GetLayeredWindowAttributes(window, nullptr, nullptr, &held) != 0 && (held & LWA_COLORKEY) != 0;
}

} // namespace zq::LM
