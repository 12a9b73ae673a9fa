// The display's mouse and keys.
#include "latency/x_mouse.h"

#include <X11/extensions/XTest.h>

#include <stdexcept>

namespace lumora::latency {

XMouse::XMouse() : display(XOpenDisplay(nullptr))
{
    int unused = 0;
    if (display == nullptr || XTestQueryExtension(display, &unused, &unused, &unused, &unused) == 0) {
        throw std::runtime_error("there is no display with the XTEST extension");
    }
}

XMouse::~XMouse() { XCloseDisplay(display); }

void XMouse::Move(std::int32_t x, std::int32_t y)
{
    XTestFakeMotionEvent(display, -1, x, y, CurrentTime);
    XFlush(display);
}

void XMouse::Button(unsigned number, bool down)
{
    XTestFakeButtonEvent(display, number, down ? True : False, CurrentTime);
    XFlush(display);
}

KeyCode XMouse::CodeOf(const std::string& key) const
{
    const KeyCode code = XKeysymToKeycode(display, XStringToKeysym(key.c_str()));
    if (code == 0) {
        throw std::runtime_error("the display has no key " + key);
    }
    return code;
}

void XMouse::Key(KeyCode code, bool down)
{
    XTestFakeKeyEvent(display, code, down ? True : False, CurrentTime);
    XFlush(display);
}

} // namespace lumora::latency
