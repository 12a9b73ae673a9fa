// The GDI back-end: its life, its binding to a window, and the operations that do nothing.
#include "render/gdi.h"

#include "support/graphics_recorder.h"
#include "support/log_level.h"
#include "support/recorded_log.h"
#include "support/test_bitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM {

namespace {

using test::GraphicsRecorder;
using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using test::TestBitmap;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned Key = 0x00FF00FF;
constexpr COLORREF Green = 0x00008000;

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
        const GDI gdi;
        EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "zq::LM::GDI::GDI(Constructor)\n"}));
    }
    EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "zq::LM::GDI::GDI(Constructor)\n"},
                                         LogLine{true, "zq::LM::GDI::~GDI(Destructor)\n"}));
}

TEST(GdiLog, BindingToAWindowIsALineWithoutAnEnd)
{
    const HiddenWindow window(10, 10);
    GDI gdi;
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
        GDI gdi;
        gdi.InitTransparentWindow(window.Get(), Key);
    }
    EXPECT_THAT(log.Lines(), IsEmpty());
}

ULONG_PTR g_startedToken = 0;
ULONG_PTR g_endedToken = 0;
UINT32 g_startupInput[4];
int g_outputRecords = 0;

// The record is read by its documented layout: version, callback, two flags.
int WINAPI RecordStartup(ULONG_PTR* token, const void* input, void* output)
{
    struct Input {
        UINT32 version;
        void* callback;
        BOOL noThread;
        BOOL noCodecs;
    };
    const auto* record = static_cast<const Input*>(input);
    g_startupInput[0] = record->version;
    g_startupInput[1] = record->callback != nullptr ? 1 : 0;
    g_startupInput[2] = record->noThread != FALSE ? 1 : 0;
    g_startupInput[3] = record->noCodecs != FALSE ? 1 : 0;
    g_outputRecords = output != nullptr ? 1 : 0;
    *token = 4711;
    g_startedToken = *token;
    return 0;
}

int WINAPI RefuseStartup(ULONG_PTR*, const void*, void*) { return 1; }

void WINAPI RecordShutdown(ULONG_PTR token) { g_endedToken = token; }

TEST(GdiLife, GdiPlusRunsFromConstructionToDestruction)
{
    const HMODULE program = GetModuleHandleW(nullptr);
    const test::ImportPatch startup(program, "gdiplus.dll", "GdiplusStartup", test::AsAddress(RecordStartup));
    const test::ImportPatch shutdown(program, "gdiplus.dll", "GdiplusShutdown",
                                     test::AsAddress(RecordShutdown));
    g_endedToken = 0;
    {
        const GDI gdi;
        EXPECT_EQ(g_startedToken, 4711U);
        EXPECT_EQ(g_endedToken, 0U);
    }
    EXPECT_EQ(g_endedToken, 4711U);
    EXPECT_THAT(g_startupInput, ElementsAre(1U, 0U, 0U, 0U));
    EXPECT_EQ(g_outputRecords, 0);
}

TEST(GdiLife, AFailedStartIsNotNoticedAndTheRestWorks)
{
    const HMODULE program = GetModuleHandleW(nullptr);
    const test::ImportPatch startup(program, "gdiplus.dll", "GdiplusStartup", test::AsAddress(RefuseStartup));
    const test::ImportPatch shutdown(program, "gdiplus.dll", "GdiplusShutdown",
                                     test::AsAddress(RecordShutdown));
    const HiddenWindow window(40, 40);
    const TestBitmap bitmap(40, 40, Green);
    g_endedToken = 4711;
    {
        GDI gdi;
        gdi.InitTransparentWindow(window.Get(), Key);
        gdi.SetMemoryDC(bitmap.DC());
        gdi.DrawLine(5, 20, 8, 0xFF0000FF, 35, 20, 8, 0xFF0000FF);
        EXPECT_TRUE(gdi.Clear());
        EXPECT_EQ(bitmap.Look().Count(Key), 1600U);
    }
    EXPECT_EQ(g_endedToken, 0U) << "no start, no token";
}

TEST(GdiBinding, MakesTheWindowSeeThroughInTheKeyAndThreeQuartersOpaque)
{
    const HiddenWindow window(10, 10);
    SetWindowLongW(window.Get(), GWL_EXSTYLE, WS_EX_LAYERED);
    GDI gdi;
    EXPECT_TRUE(gdi.InitTransparentWindow(window.Get(), Key));
    COLORREF key = 0;
    BYTE opacity = 0;
    DWORD flags = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(window.Get(), &key, &opacity, &flags));
    EXPECT_EQ(key, Key);
    EXPECT_EQ(opacity, 192);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_COLORKEY | LWA_ALPHA));
}

TEST(GdiClear, WithoutAMemoryBitmapSaysSoAndDrawsNothing)
{
    const HiddenWindow window(60, 40);
    GraphicsRecorder calls;
    GDI gdi;
    gdi.InitTransparentWindow(window.Get(), Key);
    calls.Take();
    EXPECT_FALSE(gdi.Clear());
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST(GdiClear, AfterTheBitmapWasTakenAwayDrawsNothing)
{
    const HiddenWindow window(60, 40);
    const TestBitmap bitmap(60, 40, Green);
    GDI gdi;
    gdi.InitTransparentWindow(window.Get(), Key);
    gdi.SetMemoryDC(bitmap.DC());
    gdi.SetMemoryDC(nullptr);
    EXPECT_FALSE(gdi.Clear());
    EXPECT_EQ(bitmap.Look().Count(Green), 60U * 40U);
}

TEST(GdiClear, FillsTheWindowsSizeWithTheKeyAndGivesItsBrushBack)
{
    const HiddenWindow window(60, 40);
    const TestBitmap bitmap(100, 100, Green);
    GDI gdi;
    gdi.InitTransparentWindow(window.Get(), Key);
    gdi.SetMemoryDC(bitmap.DC());
    {
        GraphicsRecorder calls;
        calls.Name(bitmap.DC(), "dc");
        EXPECT_TRUE(gdi.Clear());
        EXPECT_THAT(calls.Take(),
                    ElementsAre("CreateSolidBrush(0xff00ff) = brush", "SelectObject(dc, brush) = previous",
                                "PatBlt(dc, 0, 0, 60, 40, 0xf00021)", "SelectObject(dc, previous) = brush",
                                "DeleteObject(brush)"));
    }
    const test::Picture picture = bitmap.Look();
    EXPECT_EQ(picture.Count(Key), 60U * 40U);
    EXPECT_EQ(picture.At(0, 0), Key);
    EXPECT_EQ(picture.At(59, 39), Key);
    EXPECT_EQ(picture.At(60, 39), Green);
    EXPECT_EQ(picture.At(59, 40), Green);
}

TEST(GdiClear, UsesTheKeyThatItWasGiven)
{
    const HiddenWindow window(10, 10);
    const TestBitmap bitmap(10, 10, Green);
    GDI gdi;
    gdi.InitTransparentWindow(window.Get(), 0x00123456);
    gdi.SetMemoryDC(bitmap.DC());
    gdi.Clear();
    EXPECT_EQ(bitmap.Look().Count(0x00123456), 100U);
}

TEST(GdiEmptyOperations, AskNothingOfTheSystemAndChangeNoPixel)
{
    const HiddenWindow window(30, 30);
    const TestBitmap bitmap(30, 30, Green);
    GDI gdi;
    gdi.InitTransparentWindow(window.Get(), Key);
    gdi.SetMemoryDC(bitmap.DC());
    {
        GraphicsRecorder calls;
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
    GDI gdi;
    EXPECT_TRUE(gdi.Present());
}

TEST(GdiWithoutBitmap, EveryOperationIsHarmlessAndALaterBitmapIsDrawnOn)
{
    const TestBitmap bitmap(40, 40, Green);
    GDI gdi;
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
