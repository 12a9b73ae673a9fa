// The display's mouse and keys, moved as a hand would: the X server's own events, by its test extension.
#pragma once

#include <X11/Xlib.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::latency {

class XMouse {
public:
    // The display of $DISPLAY. Throws std::runtime_error.
    XMouse();
    ~XMouse();
    XMouse(const XMouse&) = delete;
    XMouse& operator=(const XMouse&) = delete;

    void Move(std::int32_t x, std::int32_t y);
    void Button(unsigned number, bool down);

    // By the X server's name, as "Control_L". Throws std::runtime_error where the display has no such key.
    KeyCode CodeOf(const std::string& key) const;
    void Key(KeyCode code, bool down);

private:
    Display* display;
};

} // namespace lumora::latency
