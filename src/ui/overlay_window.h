// The overlay window: borderless, topmost, click-through, over the shell's desktop.
#pragma once

#include "platform/win32/windows_header.h"
#include "ui/hotkey.h"
#include "ui/window_timer.h"

#include <utility>

namespace zq::LM {

// What the overlay window tells its owner: inside the window's messages, on its thread.
class WindowEvents {
public:
    virtual void OnCreated() = 0;                // the handle is known; nothing is set up yet
    virtual void OnPaint(bool isOwn) = 0;        // isOwn: the overlay has asked for it itself
    virtual void OnWanted(const RECT& part) = 0; // of the window, by somebody else, before the overlay asked
    virtual void OnContentLost() = 0;            // the window does not hold what was painted
    virtual void OnTick() = 0;
    virtual void OnCommand(unsigned id) = 0;
    virtual void OnMenuWanted() = 0; // by the mouse on the tray icon or by the hotkey
    virtual void OnShellRestarted() = 0;

protected:
    ~WindowEvents() = default;
};

// Class names are numbered in 16 bits.
constexpr unsigned ClassNumberAfter(unsigned number) { return (number + 1) & 0xFFFF; }

// Screen pixels per millimetre.
struct PixelDensity {
    double x = 1.0;
    double y = 1.0;
};

// By the shell's lower right corner, which on one screen is its size. A device that does not know its own
// size in millimetres leaves 1.
PixelDensity DensityOf(const RECT& shell, int widthMm, int heightMm);

// Belongs to the thread that creates it. Never destroys its window: whoever ends the instance does, and a
// change of the back-end leaves the window behind on purpose.
class OverlayWindow {
public:
    explicit OverlayWindow(WindowEvents& events);
    ~OverlayWindow() = default;
    OverlayWindow(const OverlayWindow&) = delete;
    OverlayWindow& operator=(const OverlayWindow&) = delete;

    // Registers a window class of a name that no earlier window has; classes are never unregistered, because
    // a window that is left behind keeps living with its own.
    bool RegisterWindowClass(HMODULE module, WNDPROC procedure);

    // Creates the window, whose creation messages arrive before this returns: by then the handle is known, or
    // there is none.
    void Create();

    // Serves one message of this window, by its table.
    LRESULT Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

    // True for the messages of this window, and for the creation of the one that is to become it.
    bool Owns(HWND handle, UINT message) const;

    HWND Handle() const { return window; }                  // null before creation and after destruction
    HWND LetGo() { return std::exchange(window, nullptr); } // its messages are no longer served

    // Steps of creation and set-up.
    void ListenForShell(); // from now on the restart of the shell is an event
    void MeasurePixels();
    void StartTimer();
    void StopTimer() { timer.Stop(); }
    bool MakeClickThrough(); // false when the mouse would meet the window
    bool FitToScreen();      // true when it had to change the window's size
    void RegisterHotkey() { hotkey.Register(window); }
    void UnregisterHotkey() { hotkey.Unregister(); }

    // Follows the shell's desktop; true when that had moved or changed its size.
    bool FollowScreen();

    // Asks for a repaint without erasing. Does nothing without a window.
    void Invalidate();

    const RECT& Screen() const { return screen; }

private:
    LRESULT ServeTrayMessage_(HWND handle, WPARAM wParam, LPARAM lParam);

    WindowEvents& events;
    HWND window = nullptr;
    bool isCreating = false;
    bool isInvalidated = false; // by this object, and not painted yet
    UINT shellRestarted = 0;    // a message that the system numbers; 0 while nobody listens
    WNDCLASSEXW windowClass{};
    wchar_t className[256]{};
    RECT screen;              // the shell's desktop, or a stand-in when there is no shell
    PixelDensity pixelsPerMm; // nobody asks for it yet
    Hotkey hotkey;
    WindowTimer timer;
};

} // namespace zq::LM
