// Prints what the mouse writes while Ctrl is down, as "x y pressure", after "ready" and "held", and ends with
// the first stroke. Its window is never shown, so it has neither focus nor pointer. Status 0: a stroke; 1:
// none within a minute; 2: the system refuses.
#include "input/raw_input.h"

#include <cstdio>
#include <string>

namespace {

lumora_pen::RawInput* g_input = nullptr;

void Print(const std::string& line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INPUT && g_input != nullptr) {
        Print("input");
        g_input->OnInput(reinterpret_cast<HRAWINPUT>(lParam));
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeWindow()
{
    WNDCLASSW description = {};
    description.lpfnWndProc = OnMessage;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"Raw mouse points";
    RegisterClassW(&description);
    return CreateWindowExW(0, description.lpszClassName, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                           description.hInstance, nullptr);
}

} // namespace

int main()
{
    constexpr UINT LookMs = 20;
    constexpr DWORD PatienceMs = 60000;
    HWND window = MakeWindow();
    bool isOver = false;
    lumora_pen::RawInput input(
        window,
        [&isOver](const lumora_pen::InputBatch& batch) {
            for (const lumora_pen::InputSample& sample : batch.samples) {
                Print(std::to_string(static_cast<int>(sample.x)) + " " +
                      std::to_string(static_cast<int>(sample.y)) + " " + std::to_string(sample.pressure));
                isOver = sample.pressure == 0;
            }
        },
        [wasHeld = false]() mutable {
            const bool isHeld = GetAsyncKeyState(VK_CONTROL) < 0;
            if (isHeld && !wasHeld) {
                Print("held");
            }
            return wasHeld = isHeld;
        });
    g_input = &input;
    if (!input.SetMouse(true)) {
        return 2;
    }
    Print("ready");
    const DWORD begin = GetTickCount();
    SetTimer(window, 1, LookMs, nullptr);
    MSG message = {};
    while (!isOver && GetTickCount() - begin < PatienceMs && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER) {
            input.LookAtMouse();
        }
        DispatchMessageW(&message);
    }
    return isOver ? 0 : 1;
}
