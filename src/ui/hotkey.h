// The global hotkey Ctrl+Alt+Shift+W and the atom that names it.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

class Hotkey {
public:
    Hotkey() = default;
    ~Hotkey() { Unregister(); }
    Hotkey(const Hotkey&) = delete;
    Hotkey& operator=(const Hotkey&) = delete;

    // Silent when another program holds the key: there is then no hotkey.
    void Register(HWND newOwner);
    void Unregister();

    // A destroyed window takes its hotkey along; the atom stays to be given back.
    void ForgetWindow() { owner = nullptr; }

private:
    HWND owner = nullptr;
    ATOM id = 0; // 0 without a hotkey
};

} // namespace zq::LM
