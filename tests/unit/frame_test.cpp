// The order of a frame and which of the passes run in it.
#include "support/engine_test.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

class Frames : public EngineTest {
protected:
    // Two touching samples, 3 ms old, that make the one segment of these tests.
    void MakeSegment()
    {
        Add({Sample({100, 200}), Sample({110, 210})});
        MoveClock(3);
    }

    void SetFlags(int line, int outline, int cursor = 0)
    {
        Set([=](Params& params) {
            params.line = static_cast<std::uint8_t>(line);
            params.outline = static_cast<std::uint8_t>(outline);
            params.cursor = static_cast<std::uint8_t>(cursor);
        });
    }

    const Call main = DrawLine({100, 200}, {110, 210}, 10, Ink);
    const Call rim = DrawLine({100, 200}, {110, 210}, 12, White);
    const Call core = EraseLine({100, 200}, {110, 210}, 6, Ink);
};

TEST_F(Frames, EmptyFrameClearsAndPresents) { EXPECT_EQ(Frame(), (Calls{Clear(), Present()})); }

TEST_F(Frames, OneTouchingSampleDrawsNothing)
{
    AddAt(0, {100, 200});
    EXPECT_EQ(Frame(), (Calls{Clear(), Present()}));
}

TEST_F(Frames, OneTouchingSampleDrawsNothingInAnyStrokeMode)
{
    AddAt(0, {100, 200});
    for (const int line : {0, 1}) {
        for (const bool vector : {false, true}) {
            SetFlags(line, 1);
            drawing.SetVectorOutline(vector);
            EXPECT_EQ(Frame(), (Calls{Clear(), Present()})) << line << vector;
        }
    }
}

TEST_F(Frames, OneHoveringSampleDrawsTheCursorBetweenClearAndPresent)
{
    AddAt(0, {100, 200}, Hovering);
    const Calls frame = Frame();
    ASSERT_EQ(frame.size(), 6U);
    EXPECT_EQ(frame.front(), Clear());
    EXPECT_EQ(frame.back(), Present());
}

TEST_F(Frames, TwoTouchingSamplesMakeOneLine)
{
    MakeSegment();
    EXPECT_EQ(Frame(), (Calls{Clear(), main, Present()}));
}

TEST_F(Frames, EveryFrameRedrawsTheWholeLiveSet)
{
    MakeSegment();
    Frame();
    EXPECT_EQ(Frame(), (Calls{Clear(), main, Present()}));
    AddAt(4, {120, 220});
    EXPECT_EQ(Frame(), (Calls{Clear(), main, DrawLine({110, 210}, {120, 220}, 10, Ink), Present()}));
}

TEST_F(Frames, OutlineIsDrawnWholeBeforeTheMainStroke)
{
    MakeSegment();
    AddAt(3, {120, 220});
    SetFlags(1, 1);
    EXPECT_EQ(Frame(), (Calls{Clear(), rim, DrawLine({110, 210}, {120, 220}, 12, White), main,
                              DrawLine({110, 210}, {120, 220}, 10, Ink), Present()}));
}

TEST_F(Frames, WithLineAnyOutlineButZeroIsOn)
{
    MakeSegment();
    for (const int outline : {1, 2, 255}) {
        SetFlags(1, outline);
        EXPECT_EQ(Frame(), (Calls{Clear(), rim, main, Present()})) << outline;
    }
}

TEST_F(Frames, VectorOutlineChangesNothingWithLine)
{
    MakeSegment();
    SetFlags(1, 1);
    drawing.SetVectorOutline(true);
    EXPECT_EQ(Frame(), (Calls{Clear(), rim, main, Present()}));
}

TEST_F(Frames, OutlineAloneIsRimThenMainThenHollow)
{
    MakeSegment();
    AddAt(3, {120, 220});
    SetFlags(0, 1);
    EXPECT_EQ(Frame(), (Calls{Clear(), rim, DrawLine({110, 210}, {120, 220}, 12, White), main,
                              DrawLine({110, 210}, {120, 220}, 10, Ink), core,
                              EraseLine({110, 210}, {120, 220}, 6, Ink), Present()}));
}

TEST_F(Frames, OutlineAloneAsAVectorHandsOverTheLiveSetAndNothingElse)
{
    MakeSegment();
    AddAt(3, {120, 220});
    SetFlags(0, 1);
    drawing.SetVectorOutline(true);
    EXPECT_EQ(Frame(), (Calls{Clear(), DrawPenData(3, 10, Ink), Present()}));
    EXPECT_EQ(calls.penData.back().x, 120);
}

TEST_F(Frames, VectorOutlineHandsOverHoveringSamplesTooAndStillDrawsTheCursor)
{
    MakeSegment();
    AddAt(3, {120, 220}, Hovering);
    SetFlags(0, 1, 1);
    drawing.SetVectorOutline(true);
    const Calls drawn = Drawn();
    ASSERT_EQ(drawn.size(), 5U);
    EXPECT_EQ(drawn[0], DrawPenData(3, 10, Ink));
}

TEST_F(Frames, VectorOutlineCanBeTurnedOffAgain)
{
    MakeSegment();
    SetFlags(0, 1);
    drawing.SetVectorOutline(true);
    drawing.SetVectorOutline(false);
    EXPECT_EQ(Drawn(), (Calls{rim, main, core}));
}

TEST_F(Frames, OutlineAloneIsOnOnlyAtOne)
{
    MakeSegment();
    for (const bool vector : {false, true}) {
        drawing.SetVectorOutline(vector);
        for (const int outline : {0, 2, 255}) {
            SetFlags(0, outline);
            EXPECT_EQ(Drawn(), Calls{}) << outline;
        }
    }
}

TEST_F(Frames, LineIsOnOnlyAtOne)
{
    MakeSegment();
    for (const int line : {2, 255}) {
        SetFlags(line, 0);
        EXPECT_EQ(Drawn(), Calls{}) << line;
        SetFlags(line, 1); // as with line 0: outline only
        EXPECT_EQ(Drawn(), (Calls{rim, main, core})) << line;
    }
}

TEST_F(Frames, WithoutLineAndOutlineTheCursorIsStillDrawn)
{
    MakeSegment();
    AddAt(4, {300, 400}, Hovering);
    SetFlags(0, 0, 1);
    EXPECT_EQ(Drawn().size(), 4U);
}

TEST_F(Frames, WithoutTheCursorFlagAHoveringPenShowsNothing)
{
    AddAt(0, {300, 400}, Hovering);
    SetFlags(1, 0, 0);
    EXPECT_EQ(Drawn(), Calls{});
}

TEST_F(Frames, AnyCursorFlagButZeroIsOn)
{
    AddAt(0, {300, 400}, Hovering);
    for (const int cursor : {1, 2, 255}) {
        SetFlags(1, 0, cursor);
        EXPECT_EQ(Drawn().size(), 4U) << cursor;
    }
}

TEST_F(Frames, CursorComesAfterTheStrokes)
{
    MakeSegment();
    AddAt(4, {300, 400}, Hovering);
    const Calls drawn = Drawn();
    ASSERT_EQ(drawn.size(), 5U);
    EXPECT_EQ(drawn[0], main);
}

TEST_F(Frames, ClearedLiveSetGivesAnEmptyFrame)
{
    MakeSegment();
    Frame();
    drawing.ClearLivePenData();
    EXPECT_EQ(Frame(), (Calls{Clear(), Present()}));
}

} // namespace
} // namespace zq::LM::test
