// The Core's side of the overlay window with back-ends that tell what they are asked, or that fail.
#include "parts/core/core_test.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>

namespace zq::LM::test {

class CoreFrameTest : public CoreTest {
protected:
    void RecordPaint()
    {
        calls.Record<"BeginPaint">(BeginPaint);
        calls.Record<"EndPaint">(EndPaint);
        calls.Record<"ReleaseDC">(ReleaseDC);
    }

    Lines CallsOfOnePaint()
    {
        InvalidateRect(core->Window(), nullptr, FALSE);
        UpdateWindow(core->Window());
        return calls.Take();
    }

    // A frame of the type throws, and only that frame is lost.
    void ExpectOneFrameLost(RenderingType type, const std::function<void()>& thrower);
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
                 [](const std::string& line) { return line[1] == ':'; });
    EXPECT_EQ(ofBackEnds,
              (Lines{"2: InitTransparentWindow(window 1, 0xFF00FF)", "2: Clear()", "2: Present()",
                     "0: SetMemoryDC(null)", "1: SetMemoryDC(null)", "2: SetMemoryDC(null)",
                     "0: SetMemoryDC(memory dc)", "1: SetMemoryDC(memory dc)", "2: SetMemoryDC(memory dc)"}));
}

TEST_F(CoreFrameTest, ForDirectCompositionEveryBackEndIsToldTwiceThatThereIsNoSurface)
{
    MakeCore(RenderingType::DirectComposition);
    calls.Take();
    core->CreateOverlayWindow();
    EXPECT_EQ(calls.Take(),
              (Lines{"0: InitTransparentWindow(window 1, 0xFF00FF)", "0: Clear()", "0: Present()",
                     "0: SetMemoryDC(null)", "1: SetMemoryDC(null)", "2: SetMemoryDC(null)",
                     "0: SetMemoryDC(null)", "1: SetMemoryDC(null)", "2: SetMemoryDC(null)"}));
}

TEST_F(CoreFrameTest, ANewScreenResizesTheActiveBackEndBeforeTheFrame)
{
    calls.Record<"SetWindowPos">(SetWindowPos);
    CreateWindowed(RenderingType::DirectComposition);
    shell.Move({100, 40, 900, 640});
    RecordPaint();
    calls.Take();
    SendMessageW(core->Window(), WM_PAINT, 0, 0);
    EXPECT_EQ(calls.Take(),
              (Lines{"SetWindowPos(window 1, topmost, 100, 40, 800, 600, 64)", "0: Resize(window 1)",
                     "BeginPaint(window 1, *)", "0: Clear()", "0: Present()", "EndPaint(window 1, *)"}));
}

TEST_F(CoreFrameTest, TheSurfaceIsMadeAnewBetweenResizeAndFrame)
{
    RecordDestruction();
    CreateWindowed(RenderingType::GDI);
    shell.Move({100, 40, 900, 640});
    calls.Take();
    SendMessageW(core->Window(), WM_PAINT, 0, 0);
    EXPECT_EQ(
        calls.Take(),
        (Lines{"2: Resize(window 1)", "DeleteDC(memory dc)", "DeleteObject(bitmap)", "0: SetMemoryDC(null)",
               "1: SetMemoryDC(null)", "2: SetMemoryDC(null)", "GetDC(window 1)",
               "CreateCompatibleDC(dc of window 1)", "CreateCompatibleBitmap(dc of window 1, 800, 600)",
               "DeleteObject(*)", // the brush that it is filled with
               "0: SetMemoryDC(memory dc)", "1: SetMemoryDC(memory dc)", "2: SetMemoryDC(memory dc)",
               "GetDC(window 1)", "2: Clear()", "2: Present()"}));
}

void CoreFrameTest::ExpectOneFrameLost(RenderingType type, const std::function<void()>& thrower)
{
    const std::string name = std::to_string(static_cast<int>(type)) + ": ";
    CreateWindowed(type);
    RecordPaint();
    calls.Take();
    BackEnd(type).whenCleared = thrower;
    const Lines failed = CallsOfOnePaint();
    EXPECT_EQ(std::count(failed.begin(), failed.end(), name + "Clear()"), 1);
    EXPECT_EQ(std::count(failed.begin(), failed.end(), name + "Present()"), 0);
    EXPECT_EQ(std::count(failed.begin(), failed.end(), "EndPaint(window 1, *)"), 1);
    EXPECT_FALSE(GetUpdateRect(core->Window(), nullptr, FALSE));

    BackEnd(type).whenCleared = nullptr;
    const PenData stroke[] = {Touch(100), Touch(150)};
    core->InputPenData(stroke, 2);
    UpdateWindow(core->Window());
    const Lines next = calls.Take();
    EXPECT_EQ(std::ranges::count_if(
                  next, [&](const std::string& line) { return line.starts_with(name + "DrawLine"); }),
              1);
    EXPECT_EQ(std::count(next.begin(), next.end(), name + "Present()"), 1);
}

TEST_F(CoreFrameTest, AnExceptionOfAFrameStaysInsideForGDI)
{
    ExpectOneFrameLost(RenderingType::GDI, [] { throw std::runtime_error("lost"); });
}

TEST_F(CoreFrameTest, TheFrameAfterALostOneIsWhole)
{
    CreateWindowed(RenderingType::GDI);
    CallsOfOnePaint();
    calls.Record<"IntersectClipRect">(IntersectClipRect);
    CallsOfOnePaint();
    EXPECT_EQ(calls.Count("IntersectClipRect"), 0U);
    BackEnd(RenderingType::GDI).whenCleared = [] { throw std::runtime_error("lost"); };
    CallsOfOnePaint();
    BackEnd(RenderingType::GDI).whenCleared = nullptr;
    CallsOfOnePaint();
    EXPECT_EQ(calls.Count("IntersectClipRect"), 0U);
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
    calls.Record<"GetDC">(GetDC);
    RecordPaint();
    calls.Take();
    BackEnd(RenderingType::GDI).whenCleared = [] { throw std::bad_alloc(); };
    EXPECT_EQ(CallsOfOnePaint(), (Lines{"BeginPaint(window 1, *)", "GetDC(window 1)", "2: Clear()",
                                        "ReleaseDC(window 1, dc of window 1)", "EndPaint(window 1, *)"}));
}

TEST_F(CoreFrameTest, ThatPickingWasOnOutlivesTheInstance)
{
    CreateWindowed(RenderingType::GDI);
    Params params = Record();
    params.colorPicker = 1;
    SetParams(params);
    const PenData sample = Touch(100);
    core->InputPenData(&sample, 1);
    DestroyWindowAndCore();

    CreateWindowed(RenderingType::GDI);
    core->InputPenData(&sample, 1); // picking is off in the new record
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
    core->InputPenData(&sample, 1);
    EXPECT_EQ(calls.Take(), Lines{});
}

} // namespace zq::LM::test
