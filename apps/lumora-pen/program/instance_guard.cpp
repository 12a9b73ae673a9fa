// A named mutex, and a message to whoever has it.
#include "program/instance_guard.h"
#include "program/argument_message.h"
#include "program/pen_window.h"

namespace lumora_pen {

namespace {

constexpr int Attempts = 50;
constexpr DWORD BetweenAttemptsMs = 100;
constexpr UINT LongestAnswerMs = 5000;

// Its answer; 0 when it does not listen.
LRESULT Hand(HWND running, std::string& bytes)
{
    DWORD process = 0;
    GetWindowThreadProcessId(running, &process);
    AllowSetForegroundWindow(process); // it may show something
    COPYDATASTRUCT data = {};
    data.dwData = ArgumentsMark;
    data.cbData = static_cast<DWORD>(bytes.size());
    data.lpData = bytes.data();
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(running, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG,
                        LongestAnswerMs, &answer);
    return static_cast<LRESULT>(answer);
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
    const std::wstring title = PenWindowTitle();
    std::string bytes = PackArguments(arguments);
    LRESULT answer = 0;
    for (int attempt = 0; answer == 0 && attempt < Attempts; ++attempt) {
        if (attempt > 0) {
            Sleep(BetweenAttemptsMs);
        }
        HWND running = FindWindowW(PenWindowClass, title.c_str());
        answer = running != nullptr ? Hand(running, bytes) : 0;
    }
    return answer == ArgumentsTaken;
}

} // namespace lumora_pen
