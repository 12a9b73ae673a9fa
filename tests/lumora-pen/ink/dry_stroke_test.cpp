// How a stroke dries.
#include "ink/dry_stroke.h"

#include <gmock/gmock.h>

#include <limits>

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr PixelRectangle Screen = {-1280, 0, 1920, 1080};

DryStroke StrokeOfTimes(const std::vector<std::uint32_t>& times)
{
    DryStroke stroke;
    double x = 100;
    for (const std::uint32_t time : times) {
        stroke.Add({x, 50, 6, time});
        x += 10;
    }
    return stroke;
}

std::vector<double> PlacesOf(std::span<const InkPoint> points)
{
    std::vector<double> places;
    for (const InkPoint& point : points) {
        places.push_back(point.x);
    }
    return places;
}

TEST(DryStroke, DriesSegmentsWhoseOlderEndHasTheAge)
{
    DryStroke stroke = StrokeOfTimes({1000, 1100, 1200, 1300});
    EXPECT_THAT(stroke.Dry(1399, 400), IsEmpty());
    EXPECT_THAT(PlacesOf(stroke.Dry(1500, 400)), ElementsAre(100, 110, 120));
}

TEST(DryStroke, DriesNothingTwice)
{
    DryStroke stroke = StrokeOfTimes({1000, 1100, 1200});
    EXPECT_THAT(PlacesOf(stroke.Dry(1400, 400)), ElementsAre(100, 110));
    EXPECT_THAT(stroke.Dry(1400, 400), IsEmpty());
    EXPECT_THAT(PlacesOf(stroke.Dry(1500, 400)), ElementsAre(110, 120));
}

TEST(DryStroke, GoesOnWhereItHasDried)
{
    DryStroke stroke = StrokeOfTimes({1000, 1100});
    EXPECT_THAT(stroke.Dry(1400, 400), SizeIs(2));
    stroke.Add({300, 50, 6, 1450});
    EXPECT_THAT(PlacesOf(stroke.DryRest()), ElementsAre(110, 300));
}

TEST(DryStroke, KeepsItsNewestPointWetHoweverOld)
{
    DryStroke stroke = StrokeOfTimes({1000});
    EXPECT_THAT(stroke.Dry(9000, 400), IsEmpty());
}

TEST(DryStroke, DriesWhollyAtItsEnd)
{
    DryStroke stroke = StrokeOfTimes({1000, 1001, 1002});
    EXPECT_THAT(PlacesOf(stroke.DryRest()), ElementsAre(100, 110, 120));
    EXPECT_THAT(stroke.DryRest(), IsEmpty());
}

TEST(DryStroke, OfOnePointIsADotOnce)
{
    DryStroke stroke = StrokeOfTimes({1000});
    EXPECT_THAT(PlacesOf(stroke.DryRest()), ElementsAre(100));
    EXPECT_THAT(stroke.DryRest(), IsEmpty());
}

TEST(DryStroke, ThatHasDriedToItsLastPointLeavesNoDotThere)
{
    DryStroke stroke = StrokeOfTimes({1000, 1100});
    EXPECT_THAT(stroke.Dry(2000, 400), SizeIs(2));
    EXPECT_THAT(stroke.DryRest(), IsEmpty());
}

TEST(DryStroke, OfNothingLeavesNothing)
{
    DryStroke stroke;
    EXPECT_THAT(stroke.Dry(1000, 0), IsEmpty());
    EXPECT_THAT(stroke.DryRest(), IsEmpty());
}

TEST(DryStroke, OutlivesTheWrapOfTheClock)
{
    DryStroke stroke = StrokeOfTimes({0xFFFFFFF0, 5, 10});
    EXPECT_THAT(stroke.Dry(0xFFFFFFFF, 400), IsEmpty());
    EXPECT_THAT(PlacesOf(stroke.Dry(0xFFFFFFF0 + 400, 400)), ElementsAre(100, 110));
}

TEST(DryStroke, StampOfTheFutureHasNoAge)
{
    DryStroke stroke = StrokeOfTimes({1000, 1001});
    EXPECT_THAT(stroke.Dry(999, 0), IsEmpty());
}

TEST(TouchedPart, IsTheSegmentsWithTheirEndsAndEdges)
{
    const std::vector<InkPoint> points = {{100, 50, 40, 0}, {120, 80, 10, 0}};
    EXPECT_EQ(Touched(points, Screen), (PixelRectangle{93, 43, 127, 87})); // half of the newer width, and two
}

TEST(TouchedPart, IsThatOfADot)
{
    EXPECT_EQ(Touched(std::vector<InkPoint>{{-100.5, 50, 6, 0}}, Screen),
              (PixelRectangle{-106, 45, -95, 55}));
}

TEST(TouchedPart, KeepsToTheScreen)
{
    const std::vector<InkPoint> points = {{-1e300, -5, 10, 0}, {1e300, 1, 10, 0}};
    EXPECT_EQ(Touched(points, Screen), (PixelRectangle{-1280, 0, 1920, 8}));
}

TEST(TouchedPart, IsEmptyBesideTheScreen)
{
    EXPECT_TRUE(Touched(std::vector<InkPoint>{{5000, 50, 6, 0}, {6000, 50, 6, 0}}, Screen).IsEmpty());
}

TEST(TouchedPart, IsEmptyForNoNumbersAndNoPoints)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(Touched({}, Screen).IsEmpty());
    EXPECT_TRUE(Touched(std::vector<InkPoint>{{none, 50, 6, 0}, {60, 50, 6, 0}}, Screen).IsEmpty());
    EXPECT_TRUE(Touched(std::vector<InkPoint>{{50, 50, 6, 0}, {60, endless, 6, 0}}, Screen).IsEmpty());
    EXPECT_TRUE(Touched(std::vector<InkPoint>{{50, 50, none, 0}}, Screen).IsEmpty());
}

TEST(PixelRectangles, ShareTheirCommonPart)
{
    EXPECT_EQ(Common({0, 0, 10, 10}, {5, -5, 20, 7}), (PixelRectangle{5, 0, 10, 7}));
    EXPECT_EQ(Common({0, 0, 10, 10}, {10, 0, 20, 10}), PixelRectangle{});
}

TEST(PixelRectangles, LieTogetherInOneAroundThem)
{
    EXPECT_EQ(Around({0, 0, 10, 10}, {-5, 5, 2, 20}), (PixelRectangle{-5, 0, 10, 20}));
    EXPECT_EQ(Around({}, {3, 3, 4, 4}), (PixelRectangle{3, 3, 4, 4}));
    EXPECT_EQ(Around({3, 3, 4, 4}, {9, 9, 9, 9}), (PixelRectangle{3, 3, 4, 4}));
}

} // namespace
} // namespace lumora_pen
