// The Board's way from messages to strokes. No pen is needed: what the system knows of one is answered here,
// and the messages are sent by hand.
#include "board_test.h"

#include <algorithm>
#include <utility>

namespace lumora_pen::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr UINT32 Pen = 7;
constexpr UINT32 Finger = 12;
constexpr LONG UnitsPerPixel = 10; // of the tablet, on whose surface the display lies

struct Report {
    LONG x; // the tablet's units
    LONG y;
    UINT32 pressure; // 0 hovers
    POINTER_FLAGS flags = 0;
};

class BoardInput : public BoardTest {
protected:
    BoardInput()
    {
        type.Answer([this](UINT32, POINTER_INPUT_TYPE* answer) {
            *answer = kind;
            return TRUE;
        });
        plain.Answer([this](UINT32, POINTER_INFO* answer) {
            *answer = reports.back();
            return TRUE;
        });
        rectangles.Answer([](HANDLE, RECT* surface, RECT* display) {
            *surface = {0, 0, 3000 * UnitsPerPixel, 2000 * UnitsPerPixel};
            *display = {0, 0, 3000, 2000};
            return TRUE;
        });
        AnswerInfo<POINTER_PEN_INFO>(newestPen, allPen, [this](std::size_t i) {
            POINTER_PEN_INFO info = {};
            info.pointerInfo = reports[i];
            info.penFlags = penFlags;
            info.penMask = feelsPressure ? PEN_MASK_PRESSURE : PEN_MASK_NONE;
            info.pressure = pressures[i];
            return info;
        });
        AnswerInfo<POINTER_TOUCH_INFO>(newestTouch, allTouch, [this](std::size_t i) {
            POINTER_TOUCH_INFO info = {};
            info.pointerInfo = reports[i];
            info.touchMask = feelsPressure ? TOUCH_MASK_PRESSURE : TOUCH_MASK_NONE;
            info.pressure = pressures[i];
            return info;
        });
        board.Show(nullptr);
    }

    // The system gives the newest first.
    template <typename Info, typename Newest, typename All, typename Make>
    void AnswerInfo(Newest& newest, All& all, Make make)
    {
        newest.Answer([this, make](UINT32, Info* answer) {
            *answer = make(reports.size() - 1);
            return TRUE;
        });
        all.Answer([this, make](UINT32, UINT32* count, Info* answer) {
            for (std::size_t i = 0; i < std::min<std::size_t>(*count, reports.size()); ++i) {
                answer[i] = make(reports.size() - 1 - i);
            }
            *count = static_cast<UINT32>(reports.size());
            return TRUE;
        });
    }

    // One message with everything that the pen has reported since the last one, oldest first.
    LRESULT SendPointer(UINT message, const std::vector<Report>& told, UINT32 pointer = Pen, WORD flags = 0)
    {
        reports.clear();
        pressures.clear();
        for (const Report& report : told) {
            POINTER_INFO info = {};
            info.pointerFlags = report.flags | (report.pressure > 0 ? POINTER_FLAG_INCONTACT : 0);
            info.ptHimetricLocationRaw = {report.x, report.y};
            info.ptPixelLocationRaw = {report.x / UnitsPerPixel, report.y / UnitsPerPixel};
            info.historyCount = static_cast<UINT32>(told.size());
            info.dwTime = ++time;
            reports.push_back(info);
            pressures.push_back(report.pressure);
        }
        return Send(message, MAKEWPARAM(pointer, flags), 0);
    }

    Hook<"GetPointerType", decltype(GetPointerType)> type{program};
    Hook<"GetPointerInfo", decltype(GetPointerInfo)> plain{program};
    Hook<"GetPointerPenInfo", decltype(GetPointerPenInfo)> newestPen{program};
    Hook<"GetPointerPenInfoHistory", decltype(GetPointerPenInfoHistory)> allPen{program};
    Hook<"GetPointerTouchInfo", decltype(GetPointerTouchInfo)> newestTouch{program};
    Hook<"GetPointerTouchInfoHistory", decltype(GetPointerTouchInfoHistory)> allTouch{program};
    Hook<"GetPointerDeviceRects", decltype(GetPointerDeviceRects)> rectangles{program};

    POINTER_INPUT_TYPE kind = PT_PEN;
    PEN_FLAGS penFlags = 0;
    bool feelsPressure = true;
    std::vector<POINTER_INFO> reports; // oldest first
    std::vector<UINT32> pressures;
    DWORD time = 1000;
};

TEST_F(BoardInput, ReportsOfOneMessageAreOneBatchOldestFirst)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}, {1200, 1010, 1024}, {1304, 1025, 1}});
    EXPECT_EQ(SendPointer(WM_POINTERUP, {{1400, 1030, 0}}), 0);
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(110, 100), Place(120, 101), Place(130.4, 102.5)));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(16384, FullPressure, 32));
    EXPECT_EQ(taken[1].samples[0].time, 1002U);
    EXPECT_EQ(taken[1].samples[2].time, 1004U);
    EXPECT_THAT(PressuresOf(taken[2]), ElementsAre(0));
    EXPECT_EQ(taken[0].source, Pen);
}

TEST_F(BoardInput, LongHistoryIsTakenFromItsNewestEnd)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    std::vector<Report> told;
    for (LONG i = 0; i < 300; ++i) {
        told.push_back({i * UnitsPerPixel, 1000, 512});
    }
    SendPointer(WM_POINTERUPDATE, told);
    ASSERT_THAT(taken[1].samples, SizeIs(256));
    EXPECT_EQ(taken[1].samples.front().x, 44);
    EXPECT_EQ(taken[1].samples.back().x, 299);
}

TEST_F(BoardInput, FailingHistoryLeavesTheNewestReport)
{
    allPen.Fail(FALSE);
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}, {1200, 1000, 1024}});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(120, 100)));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(FullPressure));
}

TEST_F(BoardInput, PenOfWhichOnlyThePlaceIsToldWritesAtFullWidth)
{
    newestPen.Fail(FALSE);
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 3}});
    SendPointer(WM_POINTERUP, {{1100, 1000, 0}});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(FullPressure));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(110, 100)));
}

TEST_F(BoardInput, LiftOfWhichNothingIsToldEndsTheStrokeAtItsLastPlace)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    newestPen.Fail(FALSE);
    plain.Fail(FALSE);
    SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}});
    EXPECT_THAT(taken, SizeIs(1));
    SendPointer(WM_POINTERUP, {{1100, 1000, 0}});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(100, 100)));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
}

TEST_F(BoardInput, LiftOfAPenThatTheSystemNoLongerKnowsEndsTheStroke)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    type.Fail(FALSE);
    EXPECT_EQ(SendPointer(WM_POINTERUP, {{1100, 1000, 0}}), 0);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
}

TEST_F(BoardInput, TabletThatDoesNotTellItsSizeGivesWholePixels)
{
    rectangles.Fail(FALSE);
    SendPointer(WM_POINTERDOWN, {{1004, 1006, 512}});
    EXPECT_THAT(PlacesOf(taken[0]), ElementsAre(Place(100, 100)));
}

TEST_F(BoardInput, PenThatFeelsNoPressureWritesAtFullWidth)
{
    feelsPressure = false;
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 5}});
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(FullPressure));
}

TEST_F(BoardInput, FingerWrites)
{
    kind = PT_TOUCH;
    feelsPressure = false;
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}}, Finger);
    SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}, {1204, 1000, 512}}, Finger);
    SendPointer(WM_POINTERUP, {{1300, 1000, 0}}, Finger);
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_EQ(taken[0].source, Finger);
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(FullPressure, FullPressure));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(110, 100), Place(120.4, 100)));
    EXPECT_THAT(PressuresOf(taken[2]), ElementsAre(0));
}

TEST_F(BoardInput, FingerThatFeelsPressureWritesWithIt)
{
    kind = PT_TOUCH;
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}}, Finger);
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(16384));
}

TEST_F(BoardInput, SecondFingerDoesNotWrite)
{
    kind = PT_TOUCH;
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}}, Finger);
    SendPointer(WM_POINTERDOWN, {{5000, 1000, 512}}, Finger + 1);
    SendPointer(WM_POINTERUPDATE, {{5100, 1000, 512}}, Finger + 1);
    SendPointer(WM_POINTERUP, {{5100, 1000, 0}}, Finger + 1);
    EXPECT_THAT(taken, SizeIs(1));
    SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}}, Finger);
    EXPECT_THAT(taken, SizeIs(2));
}

TEST_F(BoardInput, PalmBesideThePenDoesNotWriteAndNeitherDoesTheMouse)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    kind = PT_TOUCH;
    SendPointer(WM_POINTERDOWN, {{5000, 5000, 512}}, Finger);
    SendMouse(WM_LBUTTONDOWN, 300, 200);
    SendMouse(WM_LBUTTONUP, 300, 200, false);
    kind = PT_PEN;
    SendPointer(WM_POINTERUP, {{1100, 1000, 0}});
    kind = PT_TOUCH;
    SendPointer(WM_POINTERUPDATE, {{5100, 5000, 512}}, Finger);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_EQ(taken[1].source, Pen);
}

TEST_F(BoardInput, EraserEndWritesNoInk)
{
    for (const int end : {PEN_FLAG_INVERTED, PEN_FLAG_ERASER, PEN_FLAG_INVERTED | PEN_FLAG_ERASER}) {
        penFlags = static_cast<PEN_FLAGS>(end);
        taken.clear();
        SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
        SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}});
        SendPointer(WM_POINTERUP, {{1100, 1000, 0}});
        for (const InputBatch& batch : taken) {
            EXPECT_THAT(PressuresOf(batch), testing::Each(0));
        }
    }
}

TEST_F(BoardInput, HoveringPenIsHandedOutUntilItLeaves)
{
    SendPointer(WM_POINTERUPDATE, {{1000, 1000, 0}, {1100, 1000, 0}});
    SendPointer(WM_POINTERLEAVE, {}, Pen + 1);
    EXPECT_THAT(taken, SizeIs(1));
    SendPointer(WM_POINTERLEAVE, {});
    SendPointer(WM_POINTERLEAVE, {});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(0, 0));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(110, 100)));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
}

TEST_F(BoardInput, CancelledReportCancelsTheStroke)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    SendPointer(WM_POINTERUP, {{1100, 1000, 512}, {1200, 1000, 512, POINTER_FLAG_CANCELED}});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_TRUE(taken[1].isCancelled);
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(100, 100)));
}

TEST_F(BoardInput, CancelledMessageCancelsTheStroke)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    SendPointer(WM_POINTERUP, {{1100, 1000, 0}}, Pen, POINTER_MESSAGE_FLAG_CANCELED);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_TRUE(taken[1].isCancelled);
}

TEST_F(BoardInput, CancelledTouchDoesNotBegin)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512, POINTER_FLAG_CANCELED}});
    EXPECT_THAT(taken, IsEmpty());
    SendPointer(WM_POINTERUPDATE, {{1000, 1000, 0, POINTER_FLAG_CANCELED}});
    EXPECT_THAT(taken, IsEmpty());
}

TEST_F(BoardInput, LostCaptureOfThePenCancelsItsStrokeAlone)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    SendPointer(WM_POINTERCAPTURECHANGED, {}, Pen + 1);
    EXPECT_THAT(taken, SizeIs(1));
    SendPointer(WM_POINTERCAPTURECHANGED, {});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_TRUE(taken[1].isCancelled);
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    SendPointer(WM_POINTERUPDATE, {{1100, 1000, 512}});
    SendPointer(WM_POINTERUP, {{1100, 1000, 0}});
    EXPECT_THAT(taken, SizeIs(2));
}

TEST_F(BoardInput, PointerThatIsNeitherPenNorFingerIsTheSystems)
{
    kind = PT_MOUSE;
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    SendPointer(WM_POINTERUPDATE, {{1000, 1000, 0}});
    EXPECT_THAT(taken, IsEmpty());
    EXPECT_EQ(newestPen.Count(), 0U);
}

TEST_F(BoardInput, LossOfTheMouseIsNothingToAPenThatWrites)
{
    SendPointer(WM_POINTERDOWN, {{1000, 1000, 512}});
    Send(WM_CAPTURECHANGED);
    EXPECT_THAT(taken, SizeIs(1));
}

} // namespace
} // namespace lumora_pen::test
