// What every back-end shows alike: where ink lies, how wide it is, its colours, and nothing anywhere else.
#include "library/back_ends/coverage.h"
#include "support/library/back_end_test.h"
#include "support/row_name.h"

namespace zq::LM::test {

namespace {

class BackEndConformance : public BackEndTest, public testing::WithParamInterface<BackEnd> {
protected:
    explicit BackEndConformance(const RECT& place = AtOrigin) : BackEndTest(GetParam(), place) {}

    // Each segment as a stroke of its own, ended by a hovering sample, once earlier ink is gone.
    void Draw(const std::vector<Segment>& segments)
    {
        clock.Advance(params.inkDecayTime);
        std::vector<LM_PenData> samples;
        for (const Segment& segment : segments) {
            params.brushSize = static_cast<std::uint32_t>(segment.width);
            samples.push_back(Sample(segment.from.x, segment.from.y));
            samples.push_back(Sample(segment.to.x, segment.to.y));
            samples.push_back(Sample(segment.to.x, segment.to.y, 0));
        }
        Apply();
        InputAndPaint(samples);
    }

    void ExpectInk(const std::vector<Segment>& segments, COLORREF ink) const
    {
        const Picture picture = Look();
        const Coverage coverage = Compare(picture, All, segments, ink, Green);
        EXPECT_GT(coverage.covered, 100U);
        EXPECT_EQ(coverage.missing, 0U);
        EXPECT_EQ(coverage.stray, 0U);
    }

    bool IsInkAt(int x, int y) const { return Look().At(x, y) == Red; }
};

std::vector<Segment> InAllDirections(int width)
{
    return {{{200, 100}, {300, 100}, width}, {{350, 60}, {350, 160}, width},
            {{200, 200}, {290, 290}, width}, {{420, 200}, {330, 260}, width},
            {{500, 300}, {540, 420}, width}, {{200, 400}, {400, 380}, width}};
}

TEST_P(BackEndConformance, FramesAreItsOwn)
{
    graphics->Take();
    Draw({{{200, 100}, {300, 100}, 10}});
    EXPECT_TRUE(IsInkAt(250, 100));
    EXPECT_TRUE(DrewAllFrames(GetParam()));
}

TEST_P(BackEndConformance, EmptyOverlayIsSeenThrough) { EXPECT_TRUE(ShowsNothing()); }

TEST_P(BackEndConformance, StrokesLieWhereThePenWasAndNowhereElse)
{
    for (const int width : {4, 10, 25}) {
        SCOPED_TRACE(width);
        const std::vector<Segment> segments = InAllDirections(width);
        Draw(segments);
        ExpectInk(segments, Red);
    }
}

TEST_P(BackEndConformance, SegmentsOfAStrokeMeet)
{
    const std::vector<Segment> segments = {
        {{200, 150}, {300, 150}, 20}, {{300, 150}, {300, 250}, 20}, {{300, 250}, {400, 350}, 20}};
    params.brushSize = 20;
    Apply();
    InputAndPaint({Sample(200, 150), Sample(300, 150), Sample(300, 250), Sample(400, 350)});
    ExpectInk(segments, Red);
}

TEST_P(BackEndConformance, WidthFollowsThePressureOfTheNewerEnd)
{
    params.usePressure = 1;
    params.brushSize = 40;
    params.maxPressure = 1000;
    Apply();
    InputAndPaint({Sample(200, 200, 1000), Sample(300, 200, 250), Sample(400, 200, 500)});
    const Picture picture = Look();
    EXPECT_NEAR(CountInColumn(picture, 250, Red), 10, EdgeTolerance);
    EXPECT_NEAR(CountInColumn(picture, 350, Red), 20, EdgeTolerance);
}

TEST_P(BackEndConformance, InkHasItsColourAndNeverTheKeys)
{
    for (const auto& [given, seen] : {std::pair<COLORREF, COLORREF>{0x00C08040, 0x00C08040},
                                      {0x00000000, 0x00000000},
                                      {0x00FFFFFF, 0x00FFFFFF},
                                      {0x00FF00FF, 0x00FE00FF}}) {
        SCOPED_TRACE(given);
        params.inkColor = given;
        const std::vector<Segment> segments = {{{200, 100}, {300, 100}, 10}};
        Draw(segments);
        ExpectInk(segments, seen);
    }
}

TEST_P(BackEndConformance, OutlineIsARimInTheContrastColour)
{
    params.outline = 1;
    Draw({{{200, 200}, {400, 200}, 20}});
    const Picture picture = Look();
    EXPECT_NEAR(CountInColumn(picture, 300, Red), 20, EdgeTolerance);
    EXPECT_NEAR(CountInColumn(picture, 300, White), 2, EdgeTolerance);
    EXPECT_EQ(CountInColumn(picture, 300, Red) + CountInColumn(picture, 300, White) +
                  CountInColumn(picture, 300, Green),
              All.bottom);
}

TEST_P(BackEndConformance, ZebraBandsAre10MillisecondsOfAge)
{
    params.zebraMode = 1;
    Apply();
    for (int i = 0; i <= 3; ++i) {
        Input({Sample(200 + 60 * i, 100)});
        clock.Advance(10);
    }
    clock.Advance(5); // the segments are 45, 35 and 25 ms old
    Paint();
    const Picture picture = Look();
    EXPECT_EQ(picture.At(230, 100), Red);
    EXPECT_EQ(picture.At(290, 100), White);
    EXPECT_EQ(picture.At(350, 100), Red);
}

TEST_P(BackEndConformance, OffsetLies50PixelsAboveThePen)
{
    params.useOffset = 1;
    Draw({{{200, 200}, {300, 200}, 10}});
    ExpectInk({{{200, 150}, {300, 150}, 10}}, Red);
}

TEST_P(BackEndConformance, CrossHairLiesAtTheHoveringPen)
{
    params.cursor = 1;
    Apply();
    InputAndPaint({Sample(300, 200, 0)});
    const Picture picture = Look();
    for (const int distance : {-3, 0, 3}) {
        EXPECT_EQ(picture.At(300 + distance, 200), Red) << distance;
        EXPECT_EQ(picture.At(300, 200 + distance), Red) << distance;
    }
    EXPECT_GT(picture.Count(White), 0U);
    const RECT bounds = picture.BoundsOfOther(Green);
    constexpr int Arm = 7;
    constexpr int RoundEnd = 2;
    EXPECT_NEAR(bounds.left, 300 - Arm, RoundEnd + EdgeTolerance);
    EXPECT_NEAR(bounds.top, 200 - Arm, RoundEnd + EdgeTolerance);
    EXPECT_NEAR(bounds.right, 300 + Arm, RoundEnd + EdgeTolerance);
    EXPECT_NEAR(bounds.bottom, 200 + Arm, RoundEnd + EdgeTolerance);
}

TEST_P(BackEndConformance, StrokesShortenFromTheirTailAndLeaveNothing)
{
    constexpr DWORD Step = 50;
    params.inkDecayTime = 4 * Step;
    Apply();
    for (int i = 0; i <= 2; ++i) {
        InputAndPaint({Sample(200 + 60 * i, 100)});
        clock.Advance(Step);
    }
    EXPECT_TRUE(IsInkAt(230, 100));
    clock.Advance(Step); // the oldest sample's life is over
    Tick();
    Refresh();
    EXPECT_FALSE(IsInkAt(230, 100));
    EXPECT_TRUE(IsInkAt(290, 100));
    clock.Advance(4 * Step);
    Tick();
    Paint();
    EXPECT_TRUE(ShowsNothing());
}

TEST_P(BackEndConformance, ClicksOnInkReachWhatIsBelow)
{
    Draw({{{200, 200}, {300, 200}, 20}});
    ASSERT_TRUE(IsInkAt(250, 200));
    EXPECT_EQ(WindowFromPoint({250, 200}), backdrop.Window());
}

INSTANTIATE_TEST_SUITE_P(Each, BackEndConformance, testing::ValuesIn(AllBackEnds), RowName());

// With a screen that does not begin at the origin.
class BackEndConformanceBesideTheOrigin : public BackEndConformance {
protected:
    static constexpr POINT Origin = {10, 20};

    BackEndConformanceBesideTheOrigin()
        : BackEndConformance({Origin.x, Origin.y, Origin.x + All.right, Origin.y + All.bottom})
    {
    }

    // Of what lies at the pen, within the overlay.
    std::vector<Segment> Moved(std::vector<Segment> segments) const
    {
        for (Segment& segment : segments) {
            for (POINT* end : {&segment.from, &segment.to}) {
                end->x += backEnd.movesTwice ? Origin.x : 0;
                end->y += backEnd.movesTwice ? Origin.y : 0;
            }
        }
        return segments;
    }
};

TEST_P(BackEndConformanceBesideTheOrigin, EmptyOverlayIsSeenThrough) { EXPECT_TRUE(ShowsNothing()); }

TEST_P(BackEndConformanceBesideTheOrigin, StrokesLieWhereTheBackEndPutsThem)
{
    const std::vector<Segment> segments = InAllDirections(10);
    Draw(segments);
    ExpectInk(Moved(segments), Red);
}

TEST_P(BackEndConformanceBesideTheOrigin, StrokesAreGoneAfterTheirLife)
{
    Draw(InAllDirections(10));
    Tick();
    clock.Advance(params.inkDecayTime);
    Tick();
    Paint();
    EXPECT_TRUE(ShowsNothing());
}

INSTANTIATE_TEST_SUITE_P(Each, BackEndConformanceBesideTheOrigin, testing::ValuesIn(AllBackEnds), RowName());

} // namespace

} // namespace zq::LM::test
