// The outline and hollow passes: the rim around a stroke and the transparent core of an outline-only one.
#include "support/engine_test.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

class Outline : public EngineTest {
protected:
    Outline()
    {
        Set([](Params& params) {
            params.cursor = 0;
            params.outline = 1;
            params.usePressure = 0;
        });
    }

    void AddSegment() { Add({Sample({100, 200}), Sample({110, 210})}); }

    void SetBrushSize(std::uint32_t brushSize)
    {
        Set([=](Params& params) { params.brushSize = brushSize; });
    }

    static Call Main(std::uint32_t width) { return DrawLine({100, 200}, {110, 210}, width, Ink); }
    static Call Rim(std::uint32_t width) { return DrawLine({100, 200}, {110, 210}, width, White); }
    static Call Core(std::uint32_t width) { return EraseLine({100, 200}, {110, 210}, width, Ink); }
};

class Hollow : public Outline {
protected:
    Hollow()
    {
        Set([](Params& params) { params.line = 0; });
    }

    // The widths of the erased segments.
    std::vector<std::int64_t> ErasedWidths()
    {
        std::vector<std::int64_t> widths;
        for (const Call& call : Drawn()) {
            if (call.name == "EraseLine") {
                widths.push_back(call.arguments[2]);
            }
        }
        return widths;
    }
};

using Widths = std::vector<std::int64_t>;

TEST_F(Outline, IsTwoPixelsWiderThanTheStroke)
{
    AddSegment();
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10)}));
}

TEST_F(Outline, IsTwoPixelsWiderThanThePressureWidth)
{
    Set([](Params& params) { params.usePressure = 1; });
    Add({Sample({100, 200}), Sample({110, 210}, 16384)});
    EXPECT_EQ(Drawn(), (Calls{Rim(7), Main(5)}));
}

TEST_F(Outline, IsBlackAroundLightInk)
{
    Set([](Params& params) { params.inkColor = 0x00808080; });
    AddSegment();
    EXPECT_EQ(Drawn(), (Calls{DrawLine({100, 200}, {110, 210}, 12, Black),
                              DrawLine({100, 200}, {110, 210}, 10, 0x00808080)}));
}

TEST_F(Outline, TopBitIsDroppedAfterTheRimIsAdded)
{
    AddSegment();
    SetBrushSize(0x8000000A);
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10)}));
    SetBrushSize(0x7FFFFFFF);
    EXPECT_EQ(Drawn(), (Calls{Rim(1), Main(0x7FFFFFFF)}));
    SetBrushSize(0x7FFFFFFE);
    EXPECT_EQ(Drawn(), (Calls{Rim(0), Main(0x7FFFFFFE)}));
}

TEST_F(Outline, SumOfWidthAndRimWraps)
{
    AddSegment();
    SetBrushSize(0xFFFFFFFF);
    EXPECT_EQ(Drawn(), (Calls{Rim(1), Main(0x7FFFFFFF)}));
}

TEST_F(Outline, EmptyBrushStillHasARim)
{
    AddSegment();
    SetBrushSize(0);
    EXPECT_EQ(Drawn(), (Calls{Rim(2), Main(0)}));
}

TEST_F(Outline, FollowsTheOffset)
{
    Set([](Params& params) { params.useOffset = 1; });
    AddSegment();
    EXPECT_EQ(Drawn(), (Calls{DrawLine({100, 150}, {110, 160}, 12, White),
                              DrawLine({100, 150}, {110, 160}, 10, Ink)}));
}

TEST_F(Outline, HoveringSampleBreaksIt)
{
    Add({Sample({1, 1}), Sample({2, 2}, Hovering), Sample({3, 3}), Sample({4, 4})});
    EXPECT_EQ(Drawn(), (Calls{DrawLine({3, 3}, {4, 4}, 12, White), DrawLine({3, 3}, {4, 4}, 10, Ink)}));
}

TEST_F(Outline, SegmentWithAGapAsLongAsTheInkLifeHasNone)
{
    AddAt(0, {100, 200});
    AddAt(100, {110, 210});
    MoveClock(50);
    EXPECT_EQ(Drawn(), Calls{Main(10)});
}

TEST_F(Outline, SegmentWithAGapJustBelowTheInkLifeHasOne)
{
    AddAt(0, {100, 200});
    AddAt(99, {110, 210});
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10)}));
}

TEST_F(Outline, AgeDoesNotMatter)
{
    // The second segment is as old as the ink life, its samples are 1 ms apart: an outline without its main
    // stroke.
    AddAt(90, {1, 1});
    AddAt(0, {100, 200});
    AddAt(1, {110, 210});
    MoveClock(100);
    EXPECT_EQ(Drawn(), (Calls{DrawLine({1, 1}, {100, 200}, 12, White), Rim(12),
                              DrawLine({1, 1}, {100, 200}, 10, Ink)}));
}

TEST_F(Outline, NegativeGapIsShorterThanAnyLife)
{
    Set([](Params& params) { params.inkDecayTime = 0; });
    AddAt(20, {100, 200});
    AddAt(10, {110, 210});
    MoveClock(5);
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10)}));
}

TEST_F(Outline, GapAcrossTheClocksWrapIsNegative)
{
    SetClock(0xFFFFFFF0);
    Add({Sample({100, 200})});
    SetClock(500);
    Add({Sample({110, 210})});
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10)}));
}

TEST_F(Hollow, GapAcrossTheClocksWrapIsNegative)
{
    SetClock(0xFFFFFFF0);
    Add({Sample({100, 200})});
    SetClock(500);
    Add({Sample({110, 210})});
    EXPECT_EQ(ErasedWidths(), Widths{6});
}

TEST_F(Hollow, CoreIsFourPixelsNarrower)
{
    AddSegment();
    EXPECT_EQ(Drawn(), (Calls{Rim(12), Main(10), Core(6)}));
}

TEST_F(Hollow, CoreFollowsThePressureWidth)
{
    Set([](Params& params) { params.usePressure = 1; });
    Add({Sample({100, 200}), Sample({110, 210}, 16384)});
    EXPECT_EQ(Drawn(), (Calls{Rim(7), Main(5), Core(1)}));
}

TEST_F(Hollow, BrushAsWideAsTheInsetHasNoCore)
{
    SetBrushSize(4);
    AddSegment();
    EXPECT_EQ(Drawn(), (Calls{Rim(6), Main(4)}));
}

TEST_F(Hollow, BrushOnePixelAboveTheInsetHasACoreOfOne)
{
    SetBrushSize(5);
    AddSegment();
    EXPECT_EQ(ErasedWidths(), Widths{1});
}

TEST_F(Hollow, BrushNarrowerThanTheInsetErasesAtFullWidth)
{
    AddSegment();
    for (const std::uint32_t brushSize : {0U, 1U, 2U, 3U}) {
        SetBrushSize(brushSize);
        EXPECT_EQ(Drawn(), (Calls{Rim(brushSize + 2), Main(brushSize), Core(0xFFFFFFFF)})) << brushSize;
    }
}

TEST_F(Hollow, EverySegmentErases)
{
    SetBrushSize(3);
    Add({Sample({1, 1}), Sample({2, 2}), Sample({3, 3})});
    EXPECT_EQ(ErasedWidths(), (Widths{0xFFFFFFFF, 0xFFFFFFFF}));
}

TEST_F(Hollow, TopBitIsDroppedBeforeTheInset)
{
    AddSegment();
    SetBrushSize(0x8000000A);
    EXPECT_EQ(ErasedWidths(), Widths{6});
    SetBrushSize(0x80000004);
    EXPECT_EQ(ErasedWidths(), Widths{});
    SetBrushSize(0x80000003);
    EXPECT_EQ(ErasedWidths(), Widths{0xFFFFFFFF});
}

TEST_F(Hollow, NarrowBrushErasesAtFullWidthAtAnySmallerScale)
{
    // The wrapped number has 64 bits: half of it still saturates.
    SetBrushSize(3);
    AddSegment();
    drawing.SetScale(0.5);
    EXPECT_EQ(ErasedWidths(), Widths{0xFFFFFFFF});
}

TEST_F(Hollow, CoreThatScalesToZeroIsSkipped)
{
    SetBrushSize(5);
    AddSegment();
    drawing.SetScale(0.5);
    EXPECT_EQ(ErasedWidths(), Widths{});
}

TEST_F(Hollow, FollowsTheOffset)
{
    Set([](Params& params) { params.useOffset = 1; });
    AddSegment();
    EXPECT_EQ(Drawn().back(), EraseLine({100, 150}, {110, 160}, 6, Ink));
}

TEST_F(Hollow, HoveringSampleBreaksIt)
{
    Add({Sample({1, 1}), Sample({2, 2}, Hovering), Sample({3, 3}), Sample({4, 4})});
    const Calls drawn = Drawn();
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn.back(), EraseLine({3, 3}, {4, 4}, 6, Ink));
}

TEST_F(Hollow, GapAsLongAsTheInkLifeLeavesTheStrokeFull)
{
    AddAt(0, {100, 200});
    AddAt(100, {110, 210});
    MoveClock(50);
    EXPECT_EQ(Drawn(), Calls{Main(10)});
}

TEST_F(Hollow, AgeDoesNotMatter)
{
    AddAt(90, {1, 1});
    AddAt(0, {100, 200});
    AddAt(1, {110, 210});
    MoveClock(100);
    EXPECT_EQ(ErasedWidths(), (Widths{6, 6}));
}

TEST_F(Hollow, CoreIsErasedInTheInkColourInZebraModeToo)
{
    Set([](Params& params) { params.zebraMode = 1; });
    AddSegment();
    MoveClock(15);
    EXPECT_EQ(Drawn(), (Calls{Rim(12), DrawLine({100, 200}, {110, 210}, 10, White), Core(6)}));
}

TEST_F(Hollow, LifeThatTheCallbackChangesCountsFromTheNextSegmentOn)
{
    Drawing own; // its callbacks reach back into it
    int erased = 0;
    const auto nothing = [] {};
    const auto line = [](int, int, int, unsigned, int, int, int, unsigned) {};
    own.SetCallbacks(
        nothing, nothing, [](bool) { return 0U; }, line,
        [&](int, int, int, unsigned, int, int, int, unsigned) {
            ++erased;
            Params params = Record();
            params.inkDecayTime = 0;
            own.SetParams(&params);
        },
        [](std::vector<PenData>*, unsigned, unsigned) {});
    const Params params = Record();
    own.SetParams(&params);
    const std::vector<PenData> samples = {Sample({1, 1}), Sample({2, 2}), Sample({3, 3})};
    own.AddPenDataAry(samples.data(), samples.size());
    own.DrawLumoraLines();
    EXPECT_EQ(erased, 1);
}

TEST_F(Hollow, VectorOutlineGetsBrushSizeAndColourAsTheyAre)
{
    Set([](Params& params) {
        params.brushSize = 0xFFFFFFFF;
        params.inkColor = 0xAB123456;
        params.usePressure = 1;
        params.useOffset = 1;
    });
    drawing.SetVectorOutline(true);
    drawing.SetScale(0.5);
    Add({Sample({1, 60}, 1), Sample({2, 60}, 1)});
    EXPECT_EQ(Drawn(), Calls{DrawPenData(2, 0xFFFFFFFF, 0xAB123456)});
    EXPECT_EQ(calls.penData[0].y, 60);
}

} // namespace
} // namespace zq::LM::test
