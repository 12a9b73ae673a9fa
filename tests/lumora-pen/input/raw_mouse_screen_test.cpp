// The system's own Raw Input: nothing is stood in for.
#include "input/raw_input.h"

#include "support/screen/screen.h"

#include <gmock/gmock.h>

namespace lumora_pen {
namespace {

using zq::LM::test::Backdrop;
using zq::LM::test::PumpMessages;

RawInput* g_input = nullptr;

LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INPUT && g_input != nullptr) {
        g_input->OnInput(reinterpret_cast<HRAWINPUT>(lParam));
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

// Never shown, so it has neither focus nor pointer.
class HiddenWindow {
public:
    HiddenWindow()
    {
        WNDCLASSW description = {};
        description.lpfnWndProc = OnMessage;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = L"Raw input test";
        RegisterClassW(&description);
        window = CreateWindowExW(0, description.lpszClassName, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                 description.hInstance, nullptr);
    }
    ~HiddenWindow() { DestroyWindow(window); }
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;

    HWND Window() const { return window; }

private:
    HWND window;
};

class RawMouseOnScreen : public testing::Test {
protected:
    RawMouseOnScreen()
    {
        SetForegroundWindow(other.Window());
        SetCursorPos(200, 200);
        PumpMessages();
        g_input = &input;
    }
    ~RawMouseOnScreen() override { g_input = nullptr; }

    // As if by a hand.
    static void Move(int right, int down)
    {
        INPUT move = {};
        move.type = INPUT_MOUSE;
        move.mi.dx = right;
        move.mi.dy = down;
        move.mi.dwFlags = MOUSEEVENTF_MOVE;
        SendInput(1, &move, sizeof(move));
    }

    // Messages have a way to go.
    void PumpUntil(std::size_t count)
    {
        const DWORD begin = GetTickCount();
        while (samples.size() < count && GetTickCount() - begin < 10000) {
            PumpMessages();
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        }
        PumpMessages();
    }

    Backdrop other{{100, 100, 500, 500}, RGB(255, 255, 255)};
    HiddenWindow hidden;
    bool isHeld = false;
    std::vector<InputSample> samples;
    RawInput input{hidden.Window(),
                   [this](const InputBatch& batch) {
                       samples.insert(samples.end(), batch.samples.begin(), batch.samples.end());
                   },
                   [this] { return isHeld; }};
};

TEST_F(RawMouseOnScreen, PointsOverAnotherWindowAreHandedOut)
{
    ASSERT_TRUE(input.SetMouse(true));
    Move(7, 3); // without the key
    PumpMessages();
    POINT begin = {};
    GetCursorPos(&begin);
    ASSERT_EQ(WindowFromPoint(begin), other.Window());
    isHeld = true;
    for (int i = 0; i < 5; ++i) {
        Move(4, 2);
    }
    PumpUntil(5);
    POINT end = {};
    GetCursorPos(&end);
    ASSERT_EQ(samples.size(), 5U); // though the program has looked once only
    for (std::size_t i = 1; i < samples.size(); ++i) {
        EXPECT_GT(samples[i].x, samples[i - 1].x);
        EXPECT_GT(samples[i].y, samples[i - 1].y);
    }
    EXPECT_GT(samples[0].x, begin.x);
    EXPECT_EQ(samples[4].x, end.x);
    EXPECT_EQ(samples[4].y, end.y);
    EXPECT_EQ(samples[4].pressure, FullPressure);
    isHeld = false;
    input.LookAtMouse();
    ASSERT_EQ(samples.size(), 6U);
    EXPECT_EQ(samples[5].pressure, 0);
    EXPECT_EQ(samples[5].x, end.x);
}

TEST_F(RawMouseOnScreen, NothingComesOnceTheMouseIsSwitchedOff)
{
    ASSERT_TRUE(input.SetMouse(true));
    isHeld = true;
    Move(7, 3);
    PumpUntil(1);
    ASSERT_FALSE(samples.empty());
    ASSERT_TRUE(input.SetMouse(false));
    samples.clear();
    UINT count = 0;
    EXPECT_EQ(GetRegisteredRawInputDevices(nullptr, &count, sizeof(RAWINPUTDEVICE)), 0U);
    EXPECT_EQ(count, 0U);
    Move(7, 3);
    PumpMessages();
    EXPECT_TRUE(samples.empty());
}

} // namespace
} // namespace lumora_pen
