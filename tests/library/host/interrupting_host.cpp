// A host whose code runs inside the library's calls to the system.
#include "library/host/interrupting_host.h"

#include "support/library/object_counts.h"

#include <utility>

namespace zq::LM::test {

const std::array<InterruptingHost::Action, 6> InterruptingHost::Actions = {{
    {"destroys", &InterruptingHost::DestroyInside},
    {"creates", &InterruptingHost::CreateInside},
    {"creates, and destroys within", &InterruptingHost::CreateAndDestroyInside},
    {"destroys the window", &InterruptingHost::DestroyWindowInside},
    {"rebuilds", &InterruptingHost::RebuildInside},
    {"uses", &InterruptingHost::UseInside},
}};

void InterruptingHost::Arm(Moment moment, unsigned number, std::function<void()> what)
{
    armedMoment = moment;
    countdown = number;
    action = std::move(what);
}

void InterruptingHost::Reach(Moment moment)
{
    if (action && moment == armedMoment && --countdown == 0) {
        std::exchange(action, nullptr)();
        CheckHandle(library.GetWindowHandle());
    }
}

void InterruptingHost::CreateAndDestroyInside()
{
    Arm(armedMoment, 1, [this] { library.Destroy(); });
    CreateInside();
    Disarm();
}

// The window knows by then that another back-end is wanted, if there is a window.
void InterruptingHost::RebuildInside()
{
    const HWND window = library.GetWindowHandle();
    SendMessageW(window, WM_COMMAND, ChooseDirect2D, 0);
    SendMessageW(window, WM_COMMAND, ChooseGDI, 0);
    InputStroke();
}

void InterruptingHost::UseInside()
{
    InputStroke();
    SetField(&LM_Params::brushSize, Params().brushSize + 1);
    lumora::BrushDataMessage message = lumora::MakeBrushSize(1, 30);
    library.SetData_from_App(message.data(), message.size());
    library.SetDebugLevel(1);
}

void InterruptingHost::Live()
{
    const auto send = [this](UINT message, WPARAM wParam, LPARAM lParam) {
        SendMessageW(library.GetWindowHandle(), message, wParam, lParam);
    };
    const auto paint = [this] { UpdateWindow(library.GetWindowHandle()); };
    library.SetDebugLevel(1);
    library.Create();
    InputStroke();
    shell.Move({220, 80, 820, 500});
    paint();
    shell.Move(Desktop);
    send(TrayMessage, TrayMessage, WM_LBUTTONDOWN);
    send(WM_COMMAND, SaveCommand, 0);
    send(RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    send(WM_COMMAND, SettingsCommand, 0);
    SetParams(Params());
    Choose(ChooseDirectComposition);
    InputStroke();
    Choose(ChooseGDI);
    InputStroke();
    InputStroke();
    paint();
    library.Create();
    send(WM_COMMAND, SettingsCommand, 0);
    library.Destroy();
}

// Every overlay window that is left, and the living one, lets through what is below.
void InterruptingHost::ExpectNoSheet() const
{
    constexpr LONG SeeThrough = WS_EX_LAYERED | WS_EX_TRANSPARENT;
    for (const HWND window : OverlayWindows()) {
        EXPECT_EQ(GetWindowLongW(window, GWL_EXSTYLE) & SeeThrough, SeeThrough);
    }
}

void InterruptingHost::ExpectFreedUntouched_()
{
    if (freed) {
        EXPECT_EQ(freed->Written(), 0U);
        freed.reset();
    }
}

void InterruptingHost::KeepFreedMemory()
{
    ExpectFreedUntouched_();
    freed.emplace(library.Module());
}

void InterruptingHost::ExpectIntact()
{
    Disarm();
    CheckHandle(library.GetWindowHandle());
    ExpectNoSheet();
    PumpMessages();
    DestroyAndForget();
    ExpectFreedUntouched_();

    const HWND window = library.Create();
    EXPECT_TRUE(IsWindow(window));
    EXPECT_EQ(library.GetWindowHandle(), window);
    InputStroke();
    EXPECT_TRUE(IsInvalid());
    Paint();
    EXPECT_FALSE(IsInvalid());
    DestroyAndForget();
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    DestroyLeftWindows(nullptr);
}

} // namespace zq::LM::test
