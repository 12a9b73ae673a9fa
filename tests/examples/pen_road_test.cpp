// The pen host's way from a pen's messages to ink. No pen is needed: what the system knows of one is answered
// here, and the messages are sent by hand.
#include "pen-host/pen_window.h"

#include "support/fakes/graphics_device.h"
#include "support/hook/import_hook.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <new>
#include <utility>

#include <tpcshrd.h>

namespace pen_host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zq::LM::test::Hook;

constexpr UINT32 Pen = 7;
constexpr COLORREF Paper = RGB(255, 255, 255);
constexpr COLORREF DryInk = RGB(15, 55, 115);
constexpr LONG UnitsPerPixel = 10; // of the tablet, on whose surface the display lies
constexpr DWORD InkLife = 800;

class PenRoad : public testing::Test {
protected:
    struct Report {
        LONG x; // the tablet's units, from the corner of the window's inside
        LONG y;
        UINT32 pressure; // 0 hovers
        POINTER_FLAGS flags = 0;
    };

    PenRoad()
    {
        type.Answer([this](UINT32, POINTER_INPUT_TYPE* answer) {
            *answer = kind;
            return TRUE;
        });
        newest.Answer([this](UINT32, POINTER_PEN_INFO* answer) {
            *answer = history.front();
            return TRUE;
        });
        all.Answer([this](UINT32, UINT32* count, POINTER_PEN_INFO* answer) {
            std::copy_n(history.begin(), std::min<std::size_t>(*count, history.size()), answer);
            *count = static_cast<UINT32>(history.size());
            return TRUE;
        });
        rectangles.Answer([](HANDLE, RECT* surface, RECT* display) {
            *surface = {0, 0, 3000 * UnitsPerPixel, 2000 * UnitsPerPixel};
            *display = {0, 0, 3000, 2000};
            return TRUE;
        });
        clock.Answer([this] { return now; });
        lumora.Before([this](const LM_PenData* samples, std::uint64_t count) {
            for (std::uint64_t i = 0; i < count; ++i) {
                handedOver.push_back({samples[i].x - corner.x, samples[i].y - corner.y});
                pressures.push_back(samples[i].pressure);
            }
        });
    }

    // Opens the window, does this when it first waits for a message, and closes it.
    void InTheWindow(const std::function<void()>& write)
    {
        lumora::OverlayOptions options;
        options.backEnd = lumora::BackEnd::GDI;
        lumora::Overlay ink(options);
        ink.ChangeParams([](lumora::Params& params) {
            params.inkDecayTime = std::chrono::milliseconds(InkLife);
            params.inkColor = {30, 110, 230};
        });
        bool isDone = false;
        pump.Before([&](MSG*, HWND, UINT, UINT) {
            if (!std::exchange(isDone, true)) {
                window = FindWindowW(L"Lumora pen host", nullptr);
                UpdateWindow(window);
                ClientToScreen(window, &inside);
                corner = {inside.x - ink.Origin().x, inside.y - ink.Origin().y};
                write();
                SendMessageW(window, WM_KEYDOWN, VK_ESCAPE, 0);
            }
        });
        RunPenWindow(ink, recorded);
    }

    // One message with everything that the pen has reported since the last one, oldest first.
    void Send(UINT message, const std::vector<Report>& reports, UINT32 pointer = Pen)
    {
        history.clear();
        for (const Report& report : reports) {
            POINTER_PEN_INFO info = {};
            info.pointerInfo.pointerFlags = report.flags | (report.pressure > 0 ? POINTER_FLAG_INCONTACT : 0);
            info.pointerInfo.ptHimetricLocationRaw = {report.x + inside.x * UnitsPerPixel,
                                                      report.y + inside.y * UnitsPerPixel};
            info.pointerInfo.historyCount = static_cast<UINT32>(reports.size());
            info.penMask = PEN_MASK_PRESSURE;
            info.pressure = report.pressure;
            history.insert(history.begin(), info);
        }
        SendMessageW(window, message, pointer, 0);
    }

    COLORREF PixelAt(int x, int y) const
    {
        UpdateWindow(window);
        HDC dc = GetDC(window);
        const COLORREF colour = GetPixel(dc, x, y);
        ReleaseDC(window, dc);
        return colour;
    }

    // Devices that GDI does not need take a second.
    zq::LM::test::NoGraphicsDevice noDevice{GetModuleHandleW(L"LumoraDLL.dll")};
    HMODULE program = GetModuleHandleW(nullptr);
    Hook<"GetPointerType", decltype(GetPointerType)> type{program};
    Hook<"GetPointerPenInfo", decltype(GetPointerPenInfo)> newest{program};
    Hook<"GetPointerPenInfoHistory", decltype(GetPointerPenInfoHistory)> all{program};
    Hook<"GetPointerDeviceRects", decltype(GetPointerDeviceRects)> rectangles{program};
    Hook<"GetTickCount", decltype(GetTickCount)> clock{program};
    Hook<"GetMessageW", decltype(GetMessageW)> pump{program};
    Hook<"LM_InputPenDataArray", decltype(LM_InputPenDataArray)> lumora{program};

    POINTER_INPUT_TYPE kind = PT_PEN;
    std::vector<POINTER_PEN_INFO> history; // newest first
    DWORD now = 1000;
    HWND window = nullptr;
    POINT inside = {}; // of the window, on the screen
    POINT corner = {}; // the same for the overlay
    std::vector<PenSample> recorded;
    std::vector<std::pair<LONG, LONG>> handedOver; // to Lumora, from the corner of the window's inside
    std::vector<std::int32_t> pressures;
};

using At = std::pair<LONG, LONG>;

TEST_F(PenRoad, ReportsOfOneMessageReachLumoraOldestFirst)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 512}});
        Send(WM_POINTERUPDATE, {{1100, 1000, 512}, {1200, 1010, 1024}, {1300, 1020, 1}});
        Send(WM_POINTERUP, {{1400, 1030, 0}});
    });
    // The first one twice: a tap is to leave a dot.
    EXPECT_THAT(handedOver, ElementsAre(At(100, 100), At(100, 100), At(110, 100), At(120, 101), At(130, 102),
                                        At(140, 103)));
    EXPECT_THAT(pressures, ElementsAre(16383, 16383, 16383, FullPressure, 31, 0));
}

TEST_F(PenRoad, RecordingKeepsFractionsThatLumoraRounds)
{
    InTheWindow([this] { Send(WM_POINTERUPDATE, {{1004, 1006, 0}}); });
    ASSERT_THAT(recorded, SizeIs(1));
    EXPECT_NEAR(recorded[0].x, inside.x + 100.4, 1e-6);
    EXPECT_NEAR(recorded[0].y, inside.y + 100.6, 1e-6);
    EXPECT_THAT(handedOver, ElementsAre(At(100, 101)));
}

TEST_F(PenRoad, HoveringPenIsHandedOverAndLeavesNoInk)
{
    InTheWindow([this] {
        Send(WM_POINTERUPDATE, {{1000, 1000, 0}, {1500, 1000, 0}});
        EXPECT_EQ(PixelAt(125, 100), Paper);
    });
    EXPECT_THAT(pressures, ElementsAre(0, 0));
}

TEST_F(PenRoad, FinishedStrokeIsDry)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        EXPECT_EQ(PixelAt(125, 100), Paper);
        Send(WM_POINTERUP, {{1500, 1000, 0}});
        EXPECT_EQ(PixelAt(125, 100), DryInk);
    });
}

TEST_F(PenRoad, InkOfHalfItsLifeIsDryThoughThePenWrites)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        now += InkLife / 2 - 1;
        Send(WM_POINTERUPDATE, {{2000, 1000, 1024}});
        EXPECT_EQ(PixelAt(125, 100), Paper);
        now += 1;
        Send(WM_POINTERUPDATE, {{2500, 1000, 1024}});
        EXPECT_EQ(PixelAt(125, 100), DryInk);
        EXPECT_EQ(PixelAt(175, 100), Paper);
    });
}

TEST_F(PenRoad, InkOfAPenThatRestsDriesByTheTimer)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        now += InkLife / 2;
        SendMessageW(window, WM_TIMER, 1, 0);
        EXPECT_EQ(PixelAt(125, 100), DryInk);
    });
}

TEST_F(PenRoad, PenThatRestsKeepsTheEndOfItsStrokeWet)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        SendMessageW(window, WM_TIMER, 1, 0);
    });
    EXPECT_THAT(handedOver, ElementsAre(At(100, 100), At(100, 100), At(150, 100), At(150, 100)));
    EXPECT_THAT(recorded, SizeIs(2));
}

TEST_F(PenRoad, TapLeavesADot)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUP, {{1000, 1000, 0}});
        EXPECT_EQ(PixelAt(100, 100), DryInk);
        EXPECT_EQ(PixelAt(120, 100), Paper);
    });
}

TEST_F(PenRoad, CancelledStrokeIsTakenBack)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        now += InkLife / 2;
        Send(WM_POINTERUPDATE, {{1600, 1000, 1024}});
        EXPECT_EQ(PixelAt(125, 100), DryInk);
        Send(WM_POINTERUP, {{1600, 1000, 1024, POINTER_FLAG_CANCELED}});
        EXPECT_EQ(PixelAt(125, 100), Paper);
    });
    EXPECT_EQ(pressures.back(), 0);
}

TEST_F(PenRoad, CancelledHoverIsNothing)
{
    InTheWindow([this] { Send(WM_POINTERUPDATE, {{1000, 1000, 0, POINTER_FLAG_CANCELED}}); });
    EXPECT_THAT(handedOver, IsEmpty());
    EXPECT_THAT(recorded, IsEmpty());
}

TEST_F(PenRoad, LostCaptureEndsTheStrokeWhichStays)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        Send(WM_POINTERCAPTURECHANGED, {}, Pen + 1);
        EXPECT_EQ(pressures.back(), FullPressure);
        Send(WM_POINTERCAPTURECHANGED, {});
        EXPECT_EQ(PixelAt(125, 100), DryInk);
    });
    EXPECT_EQ(handedOver.back(), At(150, 100));
    EXPECT_EQ(pressures.back(), 0);
}

TEST_F(PenRoad, SecondPenAndMouseDoNotTearTheStroke)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERDOWN, {{5000, 3000, 1024}}, Pen + 1);
        Send(WM_POINTERUP, {{5000, 3000, 0}}, Pen + 1);
        SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(300, 200));
        SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(300, 200));
        Send(WM_POINTERUP, {{1500, 1000, 0}});
    });
    EXPECT_THAT(handedOver, ElementsAre(At(100, 100), At(100, 100), At(150, 100)));
}

TEST_F(PenRoad, LongHistoryIsTakenFromItsNewestEnd)
{
    std::vector<Report> reports;
    for (LONG i = 0; i < 300; ++i) {
        reports.push_back({i * UnitsPerPixel, 1000, 0});
    }
    InTheWindow([&] { Send(WM_POINTERUPDATE, reports); });
    ASSERT_THAT(handedOver, SizeIs(256));
    EXPECT_EQ(handedOver.front(), At(44, 100));
    EXPECT_EQ(handedOver.back(), At(299, 100));
}

TEST_F(PenRoad, FingersAreLeftToTheSystem)
{
    kind = PT_TOUCH;
    InTheWindow([this] { Send(WM_POINTERDOWN, {{1000, 1000, 1024}}); });
    EXPECT_THAT(recorded, IsEmpty());
}

TEST_F(PenRoad, PressAndHoldIsOff)
{
    InTheWindow([this] {
        const auto property =
            reinterpret_cast<ULONG_PTR>(GetPropW(window, L"MicrosoftTabletPenServiceProperty"));
        EXPECT_NE(property & TABLET_DISABLE_PRESSANDHOLD, 0U);
        const LRESULT answer = SendMessageW(window, WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, 0);
        EXPECT_EQ(static_cast<ULONG_PTR>(answer), property);
    });
}

TEST_F(PenRoad, ClearingTakesTheStrokeThatIsWrittenToo)
{
    InTheWindow([this] {
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        Send(WM_POINTERUPDATE, {{1500, 1000, 1024}});
        SendMessageW(window, WM_KEYDOWN, 'C', 0);
        EXPECT_EQ(PixelAt(125, 100), Paper);
        SendMessageW(window, WM_TIMER, 1, 0); // one that was still on its way
        Send(WM_POINTERUPDATE, {{2000, 1000, 1024}, {2500, 1000, 1024}});
        Send(WM_POINTERUP, {{2500, 1000, 0}});
        EXPECT_EQ(PixelAt(125, 100), Paper);
        EXPECT_EQ(PixelAt(175, 100), Paper);
        EXPECT_EQ(PixelAt(225, 100), DryInk);
    });
}

TEST_F(PenRoad, OutOfMemoryClosesTheWindowAndIsTold)
{
    const auto write = [this] {
        lumora.Answer([](const LM_PenData*, std::uint64_t) { throw std::bad_alloc(); });
        Send(WM_POINTERDOWN, {{1000, 1000, 1024}});
        EXPECT_FALSE(IsWindow(window));
    };
    EXPECT_THROW(InTheWindow(write), lumora::Error);
}

} // namespace
} // namespace pen_host
