// Holds a kind of device registered for Raw Input.
#pragma once

#include <windows.h>

#include <memory>

namespace lumora_pen {

// Tells the window of the devices' reports, whoever has the focus, and of their coming and going. A program
// can register each kind once.
class RawRegistration {
public:
    // Null when the system refuses.
    static std::unique_ptr<RawRegistration> Make(USHORT page, USHORT usage, HWND window)
    {
        const RAWINPUTDEVICE wanted = {page, usage, RIDEV_INPUTSINK | RIDEV_DEVNOTIFY, window};
        if (!RegisterRawInputDevices(&wanted, 1, sizeof(wanted))) {
            return nullptr;
        }
        return std::unique_ptr<RawRegistration>(new RawRegistration(page, usage));
    }
    ~RawRegistration()
    {
        const RAWINPUTDEVICE removed = {page, usage, RIDEV_REMOVE, nullptr};
        RegisterRawInputDevices(&removed, 1, sizeof(removed));
    }
    RawRegistration(const RawRegistration&) = delete;
    RawRegistration& operator=(const RawRegistration&) = delete;

private:
    RawRegistration(USHORT page, USHORT usage) : page(page), usage(usage) {}

    USHORT page;
    USHORT usage;
};

} // namespace lumora_pen
