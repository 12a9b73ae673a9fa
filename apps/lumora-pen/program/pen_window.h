// The program's hidden window: what the system, the icon and other instances have to say arrives here.
#pragma once

#include "settings/settings.h"

#include <windows.h>

#include <string>

namespace lumora_pen {

// Called from the window's procedure; nothing may be thrown.
class PenWindowEvents {
public:
    virtual void OnRawInput(HRAWINPUT input) = 0;
    virtual void OnRawDevice(WPARAM change, HANDLE device) = 0; // WM_INPUT_DEVICE_CHANGE
    virtual void OnKey(KeyCommand command) = 0;
    virtual void OnIcon(UINT mouseMessage) = 0;
    virtual void OnShellRestarted() = 0;
    virtual void OnDisplayChanged() = 0;
    virtual void OnInterrupted() = 0; // sleep, a locked or another session: nobody writes any longer
    virtual void OnSessionEnds() = 0; // the last moment to keep anything
    virtual bool OnHandedArguments(std::string_view bytes) = 0; // false: refused
    virtual void OnClose() = 0;
    virtual void OnTimer() = 0; // while a loop of the system's runs: a menu, a box

protected:
    ~PenWindowEvents() = default;
};

inline constexpr UINT IconMessage = WM_APP + 1;
inline constexpr ULONG_PTR ArgumentsMark = 0x4E45504C; // of messages between instances
inline constexpr LRESULT ArgumentsTaken = 1;           // their answers; 0 comes from one that does not listen
inline constexpr LRESULT ArgumentsRefused = 2;

class PenWindow {
public:
    // Throws lumora::Error when the system makes none. Its title names the user: other instances find it by
    // that.
    explicit PenWindow(PenWindowEvents& receiver);
    ~PenWindow();
    PenWindow(const PenWindow&) = delete;
    PenWindow& operator=(const PenWindow&) = delete;

    HWND Handle() const { return window; }

    // Nothing is told before and after: others send while the receiver is being made, and while it goes.
    void Listen(bool isWanted) { listens = isWanted; }

private:
    static LRESULT CALLBACK Procedure_(HWND itself, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Take_(HWND itself, UINT message, WPARAM wParam, LPARAM lParam);
    bool TakeOfTheSystem_(UINT message, WPARAM wParam);

    PenWindowEvents& events;
    UINT shellRestarted;
    HWND window = nullptr;
    bool listens = false;
};

// By which one instance finds another one of the same person.
extern const wchar_t PenWindowClass[];
std::wstring PenWindowTitle();

} // namespace lumora_pen
