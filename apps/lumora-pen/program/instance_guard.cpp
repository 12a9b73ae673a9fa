// A named mutex, and a message to whoever has it.
#include "program/instance_guard.h"
#include "program/argument_message.h"
#include "program/pen_window.h"

namespace lumora_pen {

namespace {

constexpr int Attempts = 50;
constexpr DWORD BetweenAttemptsMs = 100;
constexpr UINT LongestAnswerMs = 5000;

HWND FindRunning()
{
    const std::wstring title = PenWindowTitle();
    HWND running = nullptr;
    for (int attempt = 0; running == nullptr && attempt < Attempts; ++attempt) {
        if (attempt > 0) {
            Sleep(BetweenAttemptsMs);
        }
        running = FindWindowW(PenWindowClass, title.c_str());
    }
    return running;
}

} // namespace

// "Local" is this session; its name for the window tells persons apart.
InstanceGuard::InstanceGuard()
    : mutex(CreateMutexW(nullptr, FALSE, (L"Local\\" + PenWindowTitle()).c_str())),
      isFirst(mutex != nullptr && GetLastError() != ERROR_ALREADY_EXISTS)
{
}

InstanceGuard::~InstanceGuard()
{
    if (mutex != nullptr) {
        CloseHandle(mutex);
    }
}

bool HandOver(const std::vector<std::string>& arguments)
{
    HWND running = FindRunning();
    if (running == nullptr) {
        return false;
    }
    std::string bytes = PackArguments(arguments);
    DWORD process = 0;
    GetWindowThreadProcessId(running, &process);
    AllowSetForegroundWindow(process); // it may show something
    COPYDATASTRUCT data = {};
    data.dwData = ArgumentsMark;
    data.cbData = static_cast<DWORD>(bytes.size());
    data.lpData = bytes.data();
    DWORD_PTR taken = 0;
    return SendMessageTimeoutW(running, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG,
                               LongestAnswerMs, &taken) != 0 &&
           taken == TRUE;
}

} // namespace lumora_pen
