// The Core's side of the overlay window with back-ends that tell what they are asked, or that fail.
#include "windows/window/core_window_test.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>

namespace zq::LM::test {

namespace {

PenData Touch(std::int32_t x)
{
    PenData sample{};
    sample.time = 1;
    sample.x = x;
    sample.y = 100;
    sample.pressure = 1;
    return sample;
}

} // namespace

class CoreFrameTest : public CoreWindowTest {
protected:
    void RecordPaint()
    {
        calls.Record<"BeginPaint">("USER32.dll", BeginPaint);
        calls.Record<"EndPaint">("USER32.dll", EndPaint);
        calls.Record<"ReleaseDC">("USER32.dll", ReleaseDC);
    }

    Lines CallsOfOnePaint()
    {
        InvalidateRect(core->Window(), nullptr, FALSE);
        UpdateWindow(core->Window());
        return calls.Take();
    }

    // A frame of the type throws, and only that frame is lost.
    void ExpectOneFrameLost(RenderingType type, const std::function<void()>& thrower);

    PixelDensity DensityWith(int widthMm, int heightMm)
    {
        calls.Answer<"GetDeviceCaps">("GDI32.dll", GetDeviceCaps,
                                      [=](HDC, int index) { return index == HORZSIZE ? widthMm : heightMm; });
        CreateWindowed(RenderingType::DirectComposition);
        return core->Overlay().Density();
    }
};

TEST_F(CoreFrameTest, SetUpBindsTheActiveBackEndOnlyAndFramesBeforeTheSurface)
{
    RecordDestruction();
    MakeCore(RenderingType::GDI);
    calls.Take();
    core->CreateOverlayWindow();
    const Lines made = calls.Take();
    Lines ofBackEnds;
    std::copy_if(made.begin(), made.end(), std::back_inserter(ofBackEnds),
                 [](const std::string& line) { return line.starts_with("back-end"); });
    EXPECT_EQ(ofBackEnds,
              (Lines{"back-end 2 InitTransparentWindow(window 1, 0xFF00FF)", "back-end 2 Clear",
                     "back-end 2 Present", "back-end 0 SetMemoryDC(null)", "back-end 1 SetMemoryDC(null)",
                     "back-end 2 SetMemoryDC(null)", "back-end 0 SetMemoryDC(memory dc)",
                     "back-end 1 SetMemoryDC(memory dc)", "back-end 2 SetMemoryDC(memory dc)"}));
}

TEST_F(CoreFrameTest, ForDirectCompositionEveryBackEndIsToldTwiceThatThereIsNoSurface)
{
    MakeCore(RenderingType::DirectComposition);
    calls.Take();
    core->CreateOverlayWindow();
    EXPECT_EQ(calls.Take(),
              (Lines{"back-end 0 InitTransparentWindow(window 1, 0xFF00FF)", "back-end 0 Clear",
                     "back-end 0 Present", "back-end 0 SetMemoryDC(null)", "back-end 1 SetMemoryDC(null)",
                     "back-end 2 SetMemoryDC(null)", "back-end 0 SetMemoryDC(null)",
                     "back-end 1 SetMemoryDC(null)", "back-end 2 SetMemoryDC(null)"}));
}

TEST_F(CoreFrameTest, ANewScreenResizesTheActiveBackEndBeforeTheFrame)
{
    calls.Record<"SetWindowPos">("USER32.dll", SetWindowPos);
    CreateWindowed(RenderingType::DirectComposition);
    shell.Move({100, 40, 900, 640});
    RecordPaint();
    calls.Take();
    SendMessageW(core->Window(), WM_PAINT, 0, 0);
    EXPECT_EQ(calls.Take(), (Lines{"SetWindowPos(window 1, topmost, 100, 40, 800, 600, 64)",
                                   "back-end 0 Resize(window 1)", "BeginPaint(window 1, *)",
                                   "back-end 0 Clear", "back-end 0 Present", "EndPaint(window 1, *)"}));
}

TEST_F(CoreFrameTest, TheSurfaceIsMadeAnewBetweenResizeAndFrame)
{
    RecordDestruction();
    CreateWindowed(RenderingType::GDI);
    shell.Move({100, 40, 900, 640});
    calls.Take();
    SendMessageW(core->Window(), WM_PAINT, 0, 0);
    EXPECT_EQ(calls.Take(),
              (Lines{"back-end 2 Resize(window 1)", "DeleteDC(memory dc)", "DeleteObject(bitmap)",
                     "back-end 0 SetMemoryDC(null)", "back-end 1 SetMemoryDC(null)",
                     "back-end 2 SetMemoryDC(null)", "GetDC(window 1)", "CreateCompatibleDC(dc of window 1)",
                     "CreateCompatibleBitmap(dc of window 1, 800, 600)",
                     "DeleteObject(*)", // the brush that it is filled with
                     "back-end 0 SetMemoryDC(memory dc)", "back-end 1 SetMemoryDC(memory dc)",
                     "back-end 2 SetMemoryDC(memory dc)", "GetDC(window 1)", "back-end 2 Clear",
                     "back-end 2 Present"}));
}

void CoreFrameTest::ExpectOneFrameLost(RenderingType type, const std::function<void()>& thrower)
{
    const std::string name = "back-end " + std::to_string(static_cast<int>(type)) + " ";
    CreateWindowed(type);
    RecordPaint();
    calls.Take();
    BackEnd(type).whenCleared = thrower;
    const Lines failed = CallsOfOnePaint();
    EXPECT_EQ(std::count(failed.begin(), failed.end(), name + "Clear"), 1);
    EXPECT_EQ(std::count(failed.begin(), failed.end(), name + "Present"), 0);
    EXPECT_EQ(std::count(failed.begin(), failed.end(), "EndPaint(window 1, *)"), 1);
    EXPECT_FALSE(GetUpdateRect(core->Window(), nullptr, FALSE));

    BackEnd(type).whenCleared = nullptr;
    const PenData stroke[] = {Touch(100), Touch(150)};
    core->InputPenData(stroke, 2);
    UpdateWindow(core->Window());
    const Lines next = calls.Take();
    EXPECT_EQ(std::count(next.begin(), next.end(), name + "DrawLine"), 1);
    EXPECT_EQ(std::count(next.begin(), next.end(), name + "Present"), 1);
}

TEST_F(CoreFrameTest, AnExceptionOfAFrameStaysInsideForGDI)
{
    ExpectOneFrameLost(RenderingType::GDI, [] { throw std::runtime_error("lost"); });
}

TEST_F(CoreFrameTest, AnExceptionOfAFrameStaysInsideForDirectComposition)
{
    ExpectOneFrameLost(RenderingType::DirectComposition, [] { throw std::bad_alloc(); });
}

TEST_F(CoreFrameTest, AnExceptionOfAnyTypeStaysInside)
{
    ExpectOneFrameLost(RenderingType::Direct2D, [] { throw 42; });
}

TEST_F(CoreFrameTest, AFailedFrameReleasesTheWindowsDeviceContext)
{
    CreateWindowed(RenderingType::GDI);
    calls.Record<"GetDC">("USER32.dll", GetDC);
    RecordPaint();
    calls.Take();
    BackEnd(RenderingType::GDI).whenCleared = [] { throw std::bad_alloc(); };
    EXPECT_EQ(CallsOfOnePaint(), (Lines{"BeginPaint(window 1, *)", "GetDC(window 1)", "back-end 2 Clear",
                                        "ReleaseDC(window 1, dc of window 1)", "EndPaint(window 1, *)"}));
}

TEST_F(CoreFrameTest, PixelsPerMillimetreComeFromTheShellsLowerRightCorner)
{
    const PixelDensity density = DensityWith(400, 300);
    EXPECT_DOUBLE_EQ(density.x, 2.1); // 840 / 400
    EXPECT_DOUBLE_EQ(density.y, 1.8); // 540 / 300
}

TEST_F(CoreFrameTest, AnUnknownWidthLeavesOnePixelPerMillimetre)
{
    const PixelDensity density = DensityWith(0, 300);
    EXPECT_DOUBLE_EQ(density.x, 1.0);
    EXPECT_DOUBLE_EQ(density.y, 1.8);
}

TEST_F(CoreFrameTest, AnUnknownHeightLeavesOnePixelPerMillimetre)
{
    const PixelDensity density = DensityWith(400, -1);
    EXPECT_DOUBLE_EQ(density.x, 2.1);
    EXPECT_DOUBLE_EQ(density.y, 1.0);
}

TEST_F(CoreFrameTest, BeforeTheWindowThereIsOnePixelPerMillimetre)
{
    MakeCore(RenderingType::GDI);
    EXPECT_DOUBLE_EQ(core->Overlay().Density().x, 1.0);
    EXPECT_DOUBLE_EQ(core->Overlay().Density().y, 1.0);
}

TEST_F(CoreFrameTest, ThatPickingWasOnOutlivesTheInstance)
{
    CreateWindowed(RenderingType::GDI);
    Params params = *core->Record();
    params.colorPicker = 1;
    core->SetParams(params);
    const PenData sample = Touch(100);
    core->InputPenData(&sample, 1);
    DestroyWindowAndCore();

    CreateWindowed(RenderingType::GDI);
    core->SetParamsView(std::make_unique<TracedView>());
    calls.Take();
    core->InputPenData(&sample, 1); // picking is off in the new record
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
    core->InputPenData(&sample, 1);
    EXPECT_EQ(calls.Take(), Lines{});
}

} // namespace zq::LM::test
