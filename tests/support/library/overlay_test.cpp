// The common set-up of tests that drive the real library.
#include "support/library/overlay_test.h"

namespace zq::LM::test {

void OverlayTest::Select(WPARAM command)
{
    library.Create();
    Choose(command);
    DestroyAndForget();
}

HWND OverlayTest::CreateWithGDI()
{
    Select(ChooseGDI);
    return library.Create();
}

void OverlayTest::DestroyAndForget()
{
    library.Destroy();
    PumpMessages();
}

LM_Params OverlayTest::Params() const
{
    LM_Params params{};
    library.GetCopiedParams(&params);
    return params;
}

void OverlayTest::Input(const std::vector<LM_PenData>& samples) const
{
    library.InputPenDataArray(samples.data(), samples.size());
}

void OverlayTest::InputNothing() const
{
    const LM_PenData unread{};
    library.InputPenDataArray(&unread, 0);
}

void OverlayTest::PaintAgain(HWND window)
{
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
}

void OverlayTest::PaintOnce() const { UpdateWindow(library.GetWindowHandle()); }

void OverlayTest::Paint() const
{
    PaintOnce();
    SettleScreen();
}

void OverlayTest::PaintWhole()
{
    constexpr std::uint32_t LevelOfMessages = 2;
    const HWND window = library.GetWindowHandle();
    library.SetDebugLevel(LevelOfMessages);
    debugger.Clear();
    UpdateWindow(window);
    const std::vector<std::string> texts = debugger.Texts();
    library.SetDebugLevel(0);
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.front(), "WM_PAINT ... ");
    EXPECT_EQ(texts.back(), "done\n");
}

void OverlayTest::InputAndPaint(const std::vector<LM_PenData>& samples) const
{
    Input(samples);
    Paint();
}

HMODULE OverlayTest::ModuleWithDevices()
{
    noDevice.reset();
    return library.Module();
}

void OverlayTest::TearDown() { DestroyAndForget(); }

} // namespace zq::LM::test
