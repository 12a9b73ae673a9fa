// The common set-up of tests that drive the real library.
#include "support/overlay_test.h"

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

void OverlayTest::PaintOnce() const { UpdateWindow(library.GetWindowHandle()); }

void OverlayTest::Paint() const
{
    PaintOnce();
    SettleScreen();
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
