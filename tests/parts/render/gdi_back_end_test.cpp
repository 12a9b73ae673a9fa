// The GDI back-end: its life, its binding to a window, and the operations that do nothing.
#include "render/gdi.h"

#include "parts/render/gdi_test.h"
#include "support/log_level.h"
#include "support/recorded_log.h"
#include "support/screen/test_bitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM {

namespace {

using test::DrawingCalls;
using test::Green;
using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using test::TestBitmap;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned Key = 0x00FF00FF;

// A window that is never shown; without borders its client area is all of it.
class HiddenWindow {
public:
    HiddenWindow(int width, int height)
        : window(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, width, height, nullptr, nullptr, nullptr,
                                 nullptr))
    {
    }
    ~HiddenWindow() { DestroyWindow(window); }
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;

    HWND Get() const { return window; }

private:
    HWND window;
};

TEST(GdiLog, ConstructionAndDestructionAreWideLinesAtLevel2)
{
    const LogLevel level(NORMAL);
    const RecordedLog log;
    {
        PaintRecord record;
        const GDI gdi(record);
        EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "zq::LM::GDI::GDI(Constructor)\n"}));
    }
    EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "zq::LM::GDI::GDI(Constructor)\n"},
                                         LogLine{true, "zq::LM::GDI::~GDI(Destructor)\n"}));
}

TEST(GdiLog, BindingToAWindowIsALineWithoutAnEnd)
{
    const HiddenWindow window(10, 10);
    PaintRecord record;
    GDI gdi(record);
    const LogLevel level(NORMAL);
    const RecordedLog log;
    gdi.InitTransparentWindow(window.Get(), Key);
    EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "zq::LM::GDI::InitTransparentWindow"}));
}

TEST(GdiLog, NothingIsWrittenAtLevel1)
{
    const HiddenWindow window(10, 10);
    const LogLevel level(BASIC);
    const RecordedLog log;
    {
        PaintRecord record;
        GDI gdi(record);
        gdi.InitTransparentWindow(window.Get(), Key);
    }
    EXPECT_THAT(log.Lines(), IsEmpty());
}

class GdiLife : public testing::Test {
protected:
    static HMODULE Program() { return GetModuleHandleW(nullptr); }

    ULONG_PTR ended = 4711;
    test::Hook<"GdiplusStartup", decltype(Gdiplus::GdiplusStartup)> startup{Program()};
    test::Hook<"GdiplusShutdown", decltype(Gdiplus::GdiplusShutdown)> shutdown{
        Program(), [this](ULONG_PTR token) { ended = token; }};
};

TEST_F(GdiLife, GdiPlusRunsFromConstructionToDestruction)
{
    constexpr ULONG_PTR Token = 815;
    Gdiplus::GdiplusStartupInput input;
    startup.Answer([&](ULONG_PTR* token, const Gdiplus::GdiplusStartupInput* given,
                       Gdiplus::GdiplusStartupOutput* output) {
        EXPECT_EQ(output, nullptr);
        input = *given;
        *token = Token;
        return Gdiplus::Ok;
    });
    {
        PaintRecord record;
        const GDI gdi(record);
        EXPECT_EQ(startup.Count(), 1U);
        EXPECT_EQ(shutdown.Count(), 0U);
    }
    EXPECT_EQ(shutdown.Count(), 1U);
    EXPECT_EQ(ended, Token);
    EXPECT_EQ(input.GdiplusVersion, 1U);
    EXPECT_EQ(input.DebugEventCallback, nullptr);
    EXPECT_FALSE(input.SuppressBackgroundThread);
    EXPECT_FALSE(input.SuppressExternalCodecs);
}

TEST_F(GdiLife, AFailedStartIsNotNoticedAndTheRestWorks)
{
    startup.Fail(Gdiplus::GenericError);
    const HiddenWindow window(40, 40);
    const TestBitmap bitmap(40, 40, Green);
    {
        PaintRecord record;
        GDI gdi(record);
        gdi.InitTransparentWindow(window.Get(), Key);
        gdi.SetMemoryDC(bitmap.DC());
        gdi.DrawLine(5, 20, 8, 0xFF0000FF, 35, 20, 8, 0xFF0000FF);
        EXPECT_TRUE(gdi.Clear());
        EXPECT_EQ(bitmap.Look().Count(Key), 1600U);
    }
    EXPECT_EQ(ended, 0U) << "no start, no token";
}

TEST(GdiBinding, MakesTheWindowSeeThroughInTheKeyAndThreeQuartersOpaque)
{
    const HiddenWindow window(10, 10);
    SetWindowLongW(window.Get(), GWL_EXSTYLE, WS_EX_LAYERED);
    PaintRecord record;
    GDI gdi(record);
    EXPECT_TRUE(gdi.InitTransparentWindow(window.Get(), Key));
    COLORREF key = 0;
    BYTE opacity = 0;
    DWORD flags = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(window.Get(), &key, &opacity, &flags));
    EXPECT_EQ(key, Key);
    EXPECT_EQ(opacity, 192);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_COLORKEY | LWA_ALPHA));
}

class GdiClear : public testing::Test {
protected:
    GdiClear() { gdi.InitTransparentWindow(window.Get(), Key); }

    const HiddenWindow window{60, 40};
    const TestBitmap bitmap{100, 100, Green}; // larger than the window
    PaintRecord record;
    GDI gdi{record};
};

TEST_F(GdiClear, WithoutAMemoryBitmapSaysSoAndDrawsNothing)
{
    DrawingCalls calls;
    EXPECT_FALSE(gdi.Clear());
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST_F(GdiClear, AfterTheBitmapWasTakenAwayDrawsNothing)
{
    gdi.SetMemoryDC(bitmap.DC());
    gdi.SetMemoryDC(nullptr);
    EXPECT_FALSE(gdi.Clear());
    EXPECT_EQ(bitmap.Look().Count(Green), 100U * 100U);
}

TEST_F(GdiClear, FillsTheWindowsSizeWithTheKeyAndGivesItsBrushBack)
{
    gdi.SetMemoryDC(bitmap.DC());
    {
        DrawingCalls calls;
        calls.Name(bitmap.DC(), "dc");
        EXPECT_TRUE(gdi.Clear());
        EXPECT_THAT(calls.Take(),
                    ElementsAre("CreateSolidBrush(0xFF00FF)", "SelectObject(dc, brush 0xFF00FF)",
                                "PatBlt(dc, 0, 0, 60, 40, 0xF00021)", "SelectObject(dc, previous)",
                                "DeleteObject(brush 0xFF00FF)"));
    }
    const test::Picture picture = bitmap.Look();
    EXPECT_EQ(picture.Count(Key), 60U * 40U);
    EXPECT_EQ(picture.At(0, 0), Key);
    EXPECT_EQ(picture.At(59, 39), Key);
    EXPECT_EQ(picture.At(60, 39), Green);
    EXPECT_EQ(picture.At(59, 40), Green);
}

// The frame is drawn over the one before.
TEST_F(GdiClear, FailedLeavesTheBitmapUnknown)
{
    gdi.SetMemoryDC(bitmap.DC());
    record.BeginFrame();
    record.EndFrame();
    record.BeginFrame();
    gdi.Clear();
    EXPECT_FALSE(record.ToCopy().IsEverything());
    {
        test::Hook<"PatBlt", decltype(PatBlt)> fills(GetModuleHandleW(nullptr));
        fills.Fail(FALSE);
        EXPECT_TRUE(gdi.Clear());
    }
    EXPECT_TRUE(record.ToCopy().IsEverything());
}

TEST_F(GdiClear, WithoutTheWindowsSizeLeavesTheBitmapUnknown)
{
    gdi.SetMemoryDC(bitmap.DC());
    gdi.InitTransparentWindow(nullptr, Key);
    record.BeginFrame();
    record.EndFrame();
    record.BeginFrame();
    EXPECT_TRUE(gdi.Clear());
    EXPECT_TRUE(record.ToCopy().IsEverything());
}

TEST_F(GdiClear, UsesTheKeyThatItWasGiven)
{
    gdi.InitTransparentWindow(window.Get(), 0x00123456);
    gdi.SetMemoryDC(bitmap.DC());
    gdi.Clear();
    EXPECT_EQ(bitmap.Look().Count(0x00123456), 60U * 40U);
}

TEST(GdiEmptyOperations, AskNothingOfTheSystemAndChangeNoPixel)
{
    const HiddenWindow window(30, 30);
    const TestBitmap bitmap(30, 30, Green);
    PaintRecord record;
    GDI gdi(record);
    gdi.InitTransparentWindow(window.Get(), Key);
    gdi.SetMemoryDC(bitmap.DC());
    {
        DrawingCalls calls;
        std::vector<PenData> samples(2);
        samples[0].x = samples[0].y = samples[0].pressure = 5;
        samples[1].x = samples[1].y = samples[1].pressure = 25;
        gdi.DrawPenData(&samples, 10, 0xFF0000FF);
        gdi.DrawPenData(nullptr, 10, 0xFF0000FF);
        gdi.Resize(window.Get());
        gdi.Resize(nullptr);
        gdi.FillRect(0, 0, 30, 30, 0xFF0000FF);
        EXPECT_TRUE(gdi.Present());
        EXPECT_THAT(calls.Take(), IsEmpty());
    }
    EXPECT_EQ(bitmap.Look().Count(Green), 900U);
}

TEST(GdiEmptyOperations, PresentSucceedsBeforeAnythingIsBound)
{
    PaintRecord record;
    GDI gdi(record);
    EXPECT_TRUE(gdi.Present());
}

TEST(GdiWithoutBitmap, EveryOperationIsHarmlessAndALaterBitmapIsDrawnOn)
{
    const TestBitmap bitmap(40, 40, Green);
    PaintRecord record;
    GDI gdi(record);
    gdi.DrawLine(0, 0, 10, 0xFF0000FF, 20, 20, 10, 0xFF0000FF);
    gdi.DrawText(L"text", 0, 0, 0x000000FF);
    gdi.FillRect(0, 0, 10, 10, 0xFF0000FF);
    gdi.Resize(nullptr);
    EXPECT_EQ(bitmap.Look().Count(Green), 1600U);
    gdi.SetMemoryDC(bitmap.DC());
    gdi.DrawLine(10, 20, 10, 0xFF0000FF, 30, 20, 10, 0xFF0000FF);
    EXPECT_EQ(bitmap.Look().At(20, 20), 0x000000FFU);
}

} // namespace

} // namespace zq::LM
