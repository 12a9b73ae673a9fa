// What the overlay window tells its owner.
#pragma once

namespace zq::LM {

// Called inside the window's messages, on its thread.
class WindowEvents {
public:
    virtual void OnCreated() = 0; // the handle is known; nothing is set up yet
    virtual void OnPaint() = 0;
    virtual void OnTick() = 0;
    virtual void OnCommand(unsigned id) = 0;
    virtual void OnMenuWanted() = 0; // by the mouse on the tray icon or by the hotkey
    virtual void OnShellRestarted() = 0;

protected:
    ~WindowEvents() = default;
};

} // namespace zq::LM
