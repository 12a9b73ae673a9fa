// Messages of the hidden window.
#include "program/pen_window.h"

#include "lumora/error.hpp"

#include <lmcons.h>
#include <wtsapi32.h>

#include <array>

namespace lumora_pen {

const wchar_t PenWindowClass[] = L"Lumora Pen";

namespace {

constexpr UINT_PTR Timer = 1;
constexpr UINT TimerMs = 50;

} // namespace

std::wstring PenWindowTitle()
{
    std::array<wchar_t, UNLEN + 1> user{};
    auto size = static_cast<DWORD>(user.size());
    return GetUserNameW(user.data(), &size) != 0 ? std::wstring(L"Lumora Pen of ") + user.data()
                                                 : L"Lumora Pen";
}

PenWindow::PenWindow(PenWindowEvents& receiver)
    : events(receiver), shellRestarted(RegisterWindowMessageW(L"TaskbarCreated"))
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure_;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = PenWindowClass;
    RegisterClassW(&windowClass);
    // Not a message-only window: those hear nothing of the shell, the display and the end of the session.
    CreateWindowExW(WS_EX_TOOLWINDOW, PenWindowClass, PenWindowTitle().c_str(), WS_POPUP, 0, 0, 0, 0, nullptr,
                    nullptr, windowClass.hInstance, this);
    if (window == nullptr) {
        throw lumora::Error("the system makes no window");
    }
    // A shell without an administrator's rights tells one that has them, too.
    ChangeWindowMessageFilterEx(window, shellRestarted, MSGFLT_ALLOW, nullptr);
    WTSRegisterSessionNotification(window, NOTIFY_FOR_THIS_SESSION);
    SetTimer(window, Timer, TimerMs, nullptr);
}

PenWindow::~PenWindow()
{
    WTSUnRegisterSessionNotification(window);
    DestroyWindow(window);
}

LRESULT CALLBACK PenWindow::Procedure_(HWND itself, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        auto* const made = static_cast<PenWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        made->window = itself;
        SetWindowLongPtrW(itself, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* const pen = reinterpret_cast<PenWindow*>(GetWindowLongPtrW(itself, GWLP_USERDATA));
    return pen != nullptr && pen->listens ? pen->Take_(itself, message, wParam, lParam)
                                          : DefWindowProcW(itself, message, wParam, lParam);
}

LRESULT PenWindow::Take_(HWND itself, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INPUT:
        events.OnRawInput(reinterpret_cast<HRAWINPUT>(lParam));
        return DefWindowProcW(itself, message, wParam, lParam); // which gives the report back
    case WM_INPUT_DEVICE_CHANGE:
        events.OnRawDevice(wParam, reinterpret_cast<HANDLE>(lParam));
        return 0;
    case WM_HOTKEY:
        if (wParam < KeyCommandCount) {
            events.OnKey(static_cast<KeyCommand>(wParam));
        }
        return 0;
    case IconMessage:
        events.OnIcon(LOWORD(lParam));
        return 0;
    case WM_COPYDATA: {
        const auto* const data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
        const bool isOurs = data != nullptr && data->dwData == ArgumentsMark;
        if (!isOurs) {
            return 0;
        }
        const bool isTaken = events.OnHandedArguments({static_cast<const char*>(data->lpData), data->cbData});
        return isTaken ? ArgumentsTaken : ArgumentsRefused;
    }
    case WM_CLOSE:
        events.OnClose();
        return 0;
    default:
        return TakeOfTheSystem_(message, wParam) ? TRUE : DefWindowProcW(itself, message, wParam, lParam);
    }
}

bool PenWindow::TakeOfTheSystem_(UINT message, WPARAM wParam)
{
    switch (message) {
    case WM_TIMER:
        events.OnTimer();
        return true;
    case WM_DISPLAYCHANGE:
        events.OnDisplayChanged();
        return true;
    case WM_POWERBROADCAST:
        if (wParam == PBT_APMSUSPEND) {
            events.OnInterrupted();
        }
        return true;
    case WM_WTSSESSION_CHANGE:
        events.OnInterrupted();
        return true;
    case WM_ENDSESSION:
        if (wParam != FALSE) {
            events.OnSessionEnds();
        }
        return true;
    default:
        if (message == shellRestarted && shellRestarted != 0) {
            events.OnShellRestarted();
            return true;
        }
        return false;
    }
}

} // namespace lumora_pen
