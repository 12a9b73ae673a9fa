// What the ink engine does on purpose though it may look like a mistake, and the edges of its rules in plain
// sight. The model test walks over all of this too; here each case has a name and its numbers.
#include "support/engine_test.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

using Positions = std::vector<std::int32_t>;

using Store = EngineTest;

TEST_F(Store, KeepsEarlierPendingSamplesWhileNothingWouldBeVisible)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Set([](Params& params) {
        params.line = params.outline = params.cursor = params.colorPicker = 0;
        params.usePressure = params.useOffset = params.zebraMode = 1; // these show nothing
    });
    Add({Sample({3, 1})});
    Add({Sample({0, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 2);
    EXPECT_EQ(LiveX(), (Positions{1, 2}));
}

TEST_F(Store, IgnoresNullAndACountOfZero)
{
    const PenData marker = Sample({0, 0});
    Add({Sample({1, 1})});
    drawing.AddPenDataAry(nullptr, 3);
    drawing.AddPenDataAry(&marker, 0);
    EXPECT_EQ(drawing.LivePointsNum(), 1);
    drawing.SetParams(nullptr);
    drawing.GetCopiedParams(nullptr);
    EXPECT_EQ(Record().brushSize, 10U);
}

TEST_F(Store, AZeroInTheMiddleDropsWhatIsPendingAndKeepsWhatFollows)
{
    PenData timeless = Sample({2, 1});
    timeless.time = 0;
    for (const PenData& marker : {Sample({0, 1}), Sample({2, 0}), timeless}) {
        drawing.ClearLivePenData();
        Add({Sample({1, 1})});
        Add({Sample({2, 1}), marker, Sample({3, 1}, Hovering), Sample({-4, -1})});
        EXPECT_EQ(drawing.LivePointsNum(), 2);
        EXPECT_EQ(LiveX(), (Positions{3, -4}));
    }
}

TEST_F(Store, CountsWhatIsPendingUntilTheNextFrameOrAgeing)
{
    Add({Sample({1, 1}), Sample({2, 1}), Sample({3, 1})});
    Frame();
    Add({Sample({4, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 1);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 3);
    Add({Sample({0, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 0) << "though ink is live";
    Frame();
    drawing.ClearLivePenData();
    EXPECT_EQ(drawing.LivePointsNum(), 3);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(Store, RateDividesAllSamplesByTheIntervalsBetweenThem)
{
    const auto rateWithOneMoreAt = [this](std::int32_t time) {
        AddAt(time, {10, 10});
        Frame();
        return drawing.PenReoprtRate();
    };
    EXPECT_EQ(rateWithOneMoreAt(0), 0U);
    EXPECT_EQ(rateWithOneMoreAt(5), 400U);
    EXPECT_EQ(rateWithOneMoreAt(10), 300U);
    drawing.ClearLivePenData();
    EXPECT_EQ(rateWithOneMoreAt(10), 0U);
    EXPECT_EQ(rateWithOneMoreAt(10), 0U); // no time between them
}

TEST_F(Store, DropsOnlyTheLeadingRunOfOldSamples)
{
    for (const std::int32_t time : {0, 30, 60, 20}) { // ages 150, 120, 90, 130
        AddAt(time, {time + 1, 1});
    }
    MoveClock(90);
    Frame();
    MoveClock(150);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 2);
    EXPECT_EQ(LiveX(), (Positions{61, 21}));
}

TEST_F(Store, LifeOfZeroDropsAllButSamplesOfTheFuture)
{
    Set([](Params& params) { params.inkDecayTime = 0; });
    for (const std::int32_t time : {10, 11, 12}) {
        AddAt(time, {time, 1});
    }
    MoveClock(10);
    EXPECT_EQ(LiveX(), (Positions{11, 12}));
}

class Strokes : public EngineTest {
protected:
    Strokes()
    {
        Set([](Params& params) { params.cursor = params.usePressure = 0; });
    }

    void SetFlags(int line, int outline)
    {
        Set([=](Params& params) {
            params.line = static_cast<std::uint8_t>(line);
            params.outline = static_cast<std::uint8_t>(outline);
        });
    }

    void AddSegment() { Add({Sample({100, 200}), Sample({110, 210})}); }

    static Call Main(std::uint32_t width) { return DrawLine({100, 200}, {110, 210}, width, Ink); }
    static Call Rim(std::uint32_t width) { return DrawLine({100, 200}, {110, 210}, width, White); }
    static Call Core(std::uint32_t width) { return EraseLine({100, 200}, {110, 210}, width, Ink); }
};

TEST_F(Strokes, OneSampleHasACursorButNoStroke)
{
    AddAt(0, {300, 400}, Hovering);
    SetFlags(0, 1);
    EXPECT_EQ(Frame(), (Calls{Clear(), Present()}));
    Set([](Params& params) { params.cursor = 1; });
    EXPECT_EQ(Frame(),
              (Calls{Clear(), DrawLine({300, 393}, {300, 407}, 4, White),
                     DrawLine({293, 400}, {307, 400}, 4, White), DrawLine({300, 395}, {300, 405}, 2, Ink),
                     DrawLine({295, 400}, {305, 400}, 2, Ink), Present()}));
}

TEST_F(Strokes, TwoTouchingSamplesMakeOneLine)
{
    AddSegment();
    MoveClock(3);
    EXPECT_EQ(Frame(), (Calls{Clear(), Main(10), Present()}));
}

TEST_F(Strokes, FlagsAreReadInTwoWays)
{
    AddSegment();
    struct Case {
        int line, outline;
        Calls drawn;
    };
    const Calls hollow = {Rim(12), Main(10), Core(6)};
    const Calls outlined = {Rim(12), Main(10)};
    for (const Case& tested :
         {Case{1, 0, {Main(10)}}, Case{1, 1, outlined}, Case{1, 2, outlined}, Case{0, 0, {}},
          Case{0, 1, hollow}, Case{0, 2, {}}, Case{2, 0, {}}, Case{2, 1, hollow}}) {
        SetFlags(tested.line, tested.outline);
        EXPECT_EQ(Drawn(), tested.drawn) << tested.line << tested.outline;
    }
}

TEST_F(Strokes, VectorOutlineHandsOverTheSamplesAsTheyAre)
{
    SetFlags(0, 1);
    Set([](Params& params) { params.useOffset = 1; });
    drawing.SetVectorOutline(true);
    drawing.SetScale(0.5);
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{DrawPenData(2, 10, Ink)});
    EXPECT_EQ(calls.penData[0].y, 200);
}

TEST_F(Strokes, HoveringSampleBetweenTwoRemovesBothSegments)
{
    Add({Sample({1, 1}), Sample({2, 2}, Hovering), Sample({100, 200}), Sample({110, 210})});
    EXPECT_EQ(Drawn(), Calls{Main(10)});
}

TEST_F(Strokes, OffsetShiftsStrokesButNotTheCrossHair)
{
    Set([](Params& params) { params.useOffset = params.cursor = 1; });
    Add({Sample({100, 200}), Sample({110, 210}), Sample({120, 220}, Hovering)});
    const Calls drawn = Drawn();
    ASSERT_EQ(drawn.size(), 5U);
    EXPECT_EQ(drawn[0], DrawLine({100, 150}, {110, 160}, 10, Ink));
    EXPECT_EQ(drawn[1], DrawLine({120, 213}, {120, 227}, 4, White));
}

TEST_F(Strokes, OutlineMeasuresTheGapAndTheMainStrokeTheAge)
{
    // The clock ran backwards once: the first sample is young and keeps the older one behind it alive.
    SetFlags(1, 1);
    AddAt(90, {1, 1});
    AddAt(0, {100, 200});
    AddAt(1, {110, 210});
    MoveClock(100);
    EXPECT_EQ(Drawn(), (Calls{DrawLine({1, 1}, {100, 200}, 12, White), Rim(12),
                              DrawLine({1, 1}, {100, 200}, 10, Ink)}));
}

TEST_F(Strokes, ZebraAlternatesInBandsOf10MillisecondsCutTowardZero)
{
    Set([](Params& params) { params.zebraMode = 1; });
    AddSegment();
    for (const std::int32_t age : {5, 9, 25, -1, -9, -20}) {
        MoveClock(age);
        EXPECT_EQ(Drawn(), Calls{Main(10)}) << age;
    }
    for (const std::int32_t age : {10, 15, 19, -10, -19}) {
        MoveClock(age);
        EXPECT_EQ(Drawn(), Calls{Rim(10)}) << age;
    }
}

TEST_F(Strokes, TopBitOfAWidthMeansNothing)
{
    AddSegment();
    SetFlags(0, 1);
    Set([](Params& params) { params.brushSize = 0x8000000A; });
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10), Core(6)}));
    Set([](Params& params) { params.brushSize = 0xFFFFFFFF; });
    EXPECT_EQ(Drawn(), (Calls{Rim(1), Main(0x7FFFFFFF), Core(0x7FFFFFFB)}));
}

TEST_F(Strokes, BrushNarrowerThanTheHollowErasesAtFullWidth)
{
    AddSegment();
    SetFlags(0, 1);
    Set([](Params& params) { params.brushSize = 4; });
    EXPECT_EQ(Drawn(), (Calls{Rim(6), Main(4)}));
    Set([](Params& params) { params.brushSize = 3; });
    EXPECT_EQ(Drawn(), (Calls{Rim(5), Main(3), Core(0xFFFFFFFF)}));
    drawing.SetScale(0.5); // of 64 bits: half of that is still too much
    EXPECT_EQ(Drawn().back(), EraseLine({50, 100}, {55, 105}, 0xFFFFFFFF, Ink));
}

TEST_F(Strokes, LifeThatACallbackChangesCountsFromTheNextHollowSegmentOn)
{
    int erased = 0;
    const auto line = [](int, int, int, unsigned, int, int, int, unsigned) {};
    drawing.SetCallbacks([] {}, [] {}, [](bool) { return 0U; }, line,
                         [&](int, int, int, unsigned, int, int, int, unsigned) {
                             ++erased;
                             Set([](Params& params) { params.inkDecayTime = 0; });
                         },
                         [](std::vector<PenData>*, unsigned, unsigned) {});
    SetFlags(0, 1);
    Add({Sample({1, 1}), Sample({2, 2}), Sample({3, 3})});
    drawing.DrawLumoraLines();
    EXPECT_EQ(erased, 1);
}

class ColourPicking : public EngineTest {
protected:
    ColourPicking()
    {
        Set([](Params& params) { params.colorPicker = 1; });
    }
};

TEST_F(ColourPicking, TakesTheColourOfATouchBeforeTheFrameIsCleared)
{
    AddAt(0, {10, 300}, 1);
    EXPECT_EQ(Frame(), (Calls{PickColor(true), Clear(), PickColor(false),
                              DrawLine({42, 268}, {42, 268}, 40, 0x00C0C0C0),
                              DrawLine({42, 268}, {42, 268}, 32, calls.screenColour), Present()}));
    EXPECT_EQ(Record().inkColor, calls.screenColour);
}

TEST_F(ColourPicking, OtherFlagValuesSuppressStrokesButTakeNoColour)
{
    Set([](Params& params) {
        params.colorPicker = 2;
        params.cursor = 0;
    });
    Add({Sample({300, 400}), Sample({310, 410})});
    EXPECT_EQ(Frame(), (Calls{Clear(), Present()}));
}

} // namespace
} // namespace zq::LM::test
