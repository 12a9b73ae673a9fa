// Colour picking: when the screen's colour is taken, and the swatch beside the pen.
#include "support/engine_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM::test {
namespace {

constexpr std::uint32_t Grey = 0x00C0C0C0;
constexpr std::uint32_t Screen = 0x00123456;

class ColourPicking : public EngineTest {
protected:
    ColourPicking() { SetPicker(1); }

    void SetPicker(int value)
    {
        Set([=](Params& params) { params.colorPicker = static_cast<std::uint8_t>(value); });
    }

    // What the library's own callback does to the record.
    void AnswerLikeTheLibrary()
    {
        calls.whenPicked = [this](bool clearFlag) {
            Set([&](Params& params) {
                params.inkColor = calls.screenColour;
                params.colorPicker = clearFlag ? 0 : params.colorPicker;
            });
        };
    }

    static Calls Swatch(Point at, std::uint32_t colour = Screen)
    {
        return {PickColor(false), DrawLine(at, at, 40, Grey), DrawLine(at, at, 32, colour)};
    }

    // Where the swatch of a pen there stands.
    Point SwatchAt(Point pen)
    {
        drawing.ClearLivePenData();
        AddAt(0, pen, Hovering);
        const Calls drawn = Drawn();
        if (drawn.size() != 3) {
            ADD_FAILURE() << drawn.size() << " calls";
            return {};
        }
        const auto& line = drawn[1].arguments;
        return {static_cast<std::int32_t>(line[0]), static_cast<std::int32_t>(line[1])};
    }
};

TEST_F(ColourPicking, TakesTheColourBeforeTheFrameIsCleared)
{
    AddAt(0, {300, 400}, 1);
    const Calls frame = Frame();
    ASSERT_GE(frame.size(), 2U);
    EXPECT_EQ(frame[0], PickColor(true));
    EXPECT_EQ(frame[1], Clear());
}

TEST_F(ColourPicking, WholeFrameWhileTheFlagStays)
{
    AddAt(0, {300, 400}, 1);
    EXPECT_EQ(Frame(),
              (Calls{PickColor(true), Clear(), PickColor(false), DrawLine({268, 368}, {268, 368}, 40, Grey),
                     DrawLine({268, 368}, {268, 368}, 32, Screen), Present()}));
}

TEST_F(ColourPicking, PickedColourBecomesTheEnginesInk)
{
    AddAt(0, {300, 400}, 1);
    Frame();
    EXPECT_EQ(Record().inkColor, Screen);
}

TEST_F(ColourPicking, ColourIsTakenAsItCame)
{
    calls.screenColour = 0xFFFFFFFF;
    AddAt(0, {300, 400}, 1);
    Frame();
    EXPECT_EQ(Record().inkColor, 0xFFFFFFFFU);
}

TEST_F(ColourPicking, EndsWithTheFirstContactAndDrawsThatFramesStrokes)
{
    AnswerLikeTheLibrary();
    Add({Sample({100, 200}), Sample({110, 210})});
    EXPECT_EQ(Frame(),
              (Calls{PickColor(true), Clear(), DrawLine({100, 200}, {110, 210}, 10, Screen), Present()}));
    EXPECT_EQ(Frame(), (Calls{Clear(), DrawLine({100, 200}, {110, 210}, 10, Screen), Present()}));
}

TEST_F(ColourPicking, HoveringPenTakesNoColour)
{
    AddAt(0, {300, 400}, 0);
    EXPECT_EQ(Frame().front(), Clear());
    drawing.ClearLivePenData();
    AddAt(0, {300, 400}, -1);
    EXPECT_EQ(Frame().front(), Clear());
}

TEST_F(ColourPicking, OnlyTheNewestSampleDecides)
{
    Add({Sample({300, 400}, 1), Sample({301, 401}, 0)});
    EXPECT_EQ(Frame().front(), Clear());
}

TEST_F(ColourPicking, NoSampleTakesNoColour) { EXPECT_EQ(Frame(), (Calls{Clear(), Present()})); }

TEST_F(ColourPicking, SampleThatOutlivedItsInkTakesNoColour)
{
    AddAt(0, {300, 400}, 1);
    MoveClock(100);
    EXPECT_EQ(Frame(), (Calls{Clear(), Present()}));
}

TEST_F(ColourPicking, OtherFlagValuesSuppressStrokesButTakeNoColour)
{
    for (const int flag : {2, 255}) {
        SetPicker(flag);
        drawing.ClearLivePenData();
        Add({Sample({300, 400}), Sample({310, 410})});
        Calls expected = Swatch({278, 378});
        expected.insert(expected.begin(), Clear());
        expected.push_back(Present());
        EXPECT_EQ(Frame(), expected) << flag;
    }
}

TEST_F(ColourPicking, SuppressesEveryKindOfStroke)
{
    Add({Sample({300, 400}), Sample({310, 410}, Hovering), Sample({320, 420}), Sample({330, 430}, Hovering)});
    for (const bool vector : {false, true}) {
        for (const int line : {0, 1}) {
            Set([=](Params& params) {
                params.line = static_cast<std::uint8_t>(line);
                params.outline = 1;
                params.cursor = 0;
            });
            drawing.SetVectorOutline(vector);
            EXPECT_EQ(Frame(), (Calls{Clear(), Present()})) << line << vector;
        }
    }
}

TEST_F(ColourPicking, WithoutTheCursorFlagThereIsNoSwatchButTheColourIsTaken)
{
    Set([](Params& params) { params.cursor = 0; });
    AddAt(0, {300, 400}, 1);
    EXPECT_EQ(Frame(), (Calls{PickColor(true), Clear(), Present()}));
}

TEST_F(ColourPicking, SwatchShowsTheColourUnderTheHoveringPen)
{
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn(), Swatch({268, 368}));
}

TEST_F(ColourPicking, SwatchReplacesTheCrossHair)
{
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn().size(), 3U);
}

TEST_F(ColourPicking, InkFollowsThePenWhilePicking)
{
    AnswerLikeTheLibrary();
    AddAt(0, {300, 400}, Hovering);
    Frame();
    EXPECT_EQ(Record().inkColor, Screen);
    EXPECT_EQ(Record().colorPicker, 1);
    calls.screenColour = 0x00ABCDEF;
    EXPECT_EQ(Drawn(), Swatch({268, 368}, 0x00ABCDEF));
    EXPECT_EQ(Record().inkColor, 0x00ABCDEFU);
}

TEST_F(ColourPicking, SwatchAloneDoesNotWriteTheEnginesInk)
{
    AddAt(0, {300, 400}, Hovering);
    Frame();
    EXPECT_EQ(Record().inkColor, Ink);
}

TEST_F(ColourPicking, OffsetDoesNotMoveTheSwatch)
{
    Set([](Params& params) { params.useOffset = 1; });
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn(), Swatch({268, 368}));
}

TEST_F(ColourPicking, SwatchNearTheLeftEdgeStandsToTheRight)
{
    const Point swatch = SwatchAt({10, 300});
    EXPECT_EQ(swatch.x, 42);
    EXPECT_EQ(swatch.y, 268);
}

TEST_F(ColourPicking, SwatchTurnsAt64PixelsFromTheLeftEdge)
{
    EXPECT_EQ(SwatchAt({65, 300}).x, 33);
    EXPECT_EQ(SwatchAt({64, 300}).x, 96);
    EXPECT_EQ(SwatchAt({32, 300}).x, 64);
    EXPECT_EQ(SwatchAt({1, 300}).x, 33);
}

TEST_F(ColourPicking, SwatchTurnsAt64PixelsFromTheTopEdge)
{
    EXPECT_EQ(SwatchAt({300, 65}).y, 33);
    EXPECT_EQ(SwatchAt({300, 64}).y, 96);
    EXPECT_EQ(SwatchAt({300, 32}).y, 64);
    EXPECT_EQ(SwatchAt({300, 1}).y, 33);
}

TEST_F(ColourPicking, SwatchOfNegativePositionsStandsToTheRightAndBelow)
{
    const Point swatch = SwatchAt({-500, -1});
    EXPECT_EQ(swatch.x, -468);
    EXPECT_EQ(swatch.y, 31);
}

TEST_F(ColourPicking, SwatchHasNoTurnAtTheFarEdges)
{
    constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
    const Point swatch = SwatchAt({Highest, Highest});
    EXPECT_EQ(swatch.x, Highest - 32);
    EXPECT_EQ(swatch.y, Highest - 32);
}

TEST_F(ColourPicking, SwatchPositionWrapsAtTheLowestCoordinate)
{
    constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(SwatchAt({Lowest, 300}).x, std::numeric_limits<std::int32_t>::max() - 31);
}

TEST_F(ColourPicking, SwatchFollowsTheScale)
{
    drawing.SetScale(0.5);
    AddAt(0, {301, 10}, Hovering);
    EXPECT_EQ(Drawn(), (Calls{PickColor(false), DrawLine({134, 21}, {134, 21}, 20, Grey),
                              DrawLine({134, 21}, {134, 21}, 16, Screen)}));
}

} // namespace
} // namespace zq::LM::test
