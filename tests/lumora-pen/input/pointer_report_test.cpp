// What the system's numbers for a pen or a finger mean.
#include "input/pointer_report.h"

#include <gmock/gmock.h>

#include <limits>

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TouchPressure, GoesFromOneToFull)
{
    EXPECT_EQ(TouchPressure(0), 1);
    EXPECT_EQ(TouchPressure(1), 32);
    EXPECT_EQ(TouchPressure(512), 16384);
    EXPECT_EQ(TouchPressure(1024), FullPressure);
}

TEST(TouchPressure, GrowsWithEveryStep)
{
    for (std::uint32_t reported = 1; reported <= 1024; ++reported) {
        ASSERT_GT(TouchPressure(reported), TouchPressure(reported - 1)) << reported;
    }
}

TEST(TouchPressure, IsNoMoreThanFull)
{
    EXPECT_EQ(TouchPressure(1025), FullPressure);
    EXPECT_EQ(TouchPressure(std::numeric_limits<std::uint32_t>::max()), FullPressure);
}

TEST(TouchPressure, IsFullWhereNoneIsFelt) { EXPECT_EQ(TouchPressure(std::nullopt), FullPressure); }

// Two monitors, 30 by 20 centimetres each, the second twice as fine, and one to the left of the first.
constexpr PixelRectangle Surface = {0, 0, 30000, 20000};
constexpr Tablet OnTheFirst = {Surface, {0, 0, 1920, 1080}};
constexpr Tablet OnTheSecond = {Surface, {1920, 0, 5760, 2160}};
constexpr Tablet OnTheLeft = {Surface, {-1280, 100, 0, 1124}};

void ExpectPlace(const Tablet& tablet, WholePosition fine, WholePosition pixel, double x, double y)
{
    const Position place = PlaceOnScreen(fine, pixel, tablet);
    EXPECT_NEAR(place.x, x, 1e-9);
    EXPECT_NEAR(place.y, y, 1e-9);
}

TEST(PlaceOnTheScreen, IsThatOfTheMonitorUnderTheSurface)
{
    ExpectPlace(OnTheFirst, {15000, 10000}, {960, 540}, 960, 540);
    ExpectPlace(OnTheSecond, {15000, 10000}, {3840, 1080}, 3840, 1080);
    ExpectPlace(OnTheLeft, {0, 0}, {-1280, 100}, -1280, 100);
    ExpectPlace(OnTheLeft, {30000, 20000}, {0, 1124}, 0, 1124);
}

TEST(PlaceOnTheScreen, KeepsFractionsOfPixels)
{
    ExpectPlace(OnTheFirst, {15004, 10001}, {960, 540}, 960.256, 540.054);
    ExpectPlace(OnTheSecond, {15001, 10001}, {3840, 1080}, 3840.128, 1080.108);
    ExpectPlace(OnTheLeft, {15005, 10002}, {-640, 612}, -639.786666666667, 612.1024);
}

TEST(PlaceOnTheScreen, CountsFromTheSurfacesOwnCorner)
{
    ExpectPlace({{1000, 2000, 31000, 22000}, OnTheFirst.display}, {16000, 12000}, {960, 540}, 960, 540);
}

TEST(PlaceOnTheScreen, IsTheSystemsWhereTheTabletHasNoSize)
{
    ExpectPlace({}, {15004, 10001}, {960, 540}, 960, 540);
    ExpectPlace({Surface, {}}, {15004, 10001}, {960, 540}, 960, 540);
    ExpectPlace({{0, 0, -5, 20000}, OnTheFirst.display}, {15004, 10001}, {960, 540}, 960, 540.054);
}

TEST(PlaceOnTheScreen, IsTheSystemsWhereTheTwoDoNotAgree)
{
    ExpectPlace(OnTheFirst, {20000, 10001}, {540, 540}, 540, 540.054);
    ExpectPlace(OnTheFirst, {15004, std::numeric_limits<std::int32_t>::max()}, {960, 3}, 960.256, 3);
}

TEST(PlaceOnTheScreen, IsFineWithinTheRoundingOfBoth)
{
    ExpectPlace(OnTheFirst, {15004, 10001}, {962, 539}, 960.256, 540.054);
    ExpectPlace(OnTheFirst, {15004, 10001}, {963, 538}, 963, 538);
}

TEST(PointerHistory, IsAskedForWithinBounds)
{
    EXPECT_EQ(HistoryToAsk(0), 1U);
    EXPECT_EQ(HistoryToAsk(17), 17U);
    EXPECT_EQ(HistoryToAsk(256), 256U);
    EXPECT_EQ(HistoryToAsk(257), 256U);
    EXPECT_EQ(HistoryToAsk(std::numeric_limits<std::uint32_t>::max()), 256U);
}

TEST(PointerHistory, IsTurnedSoThatTheOldestComesFirst)
{
    std::vector<int> reports = {3, 2, 1};
    TurnOldestFirst(reports, 3);
    EXPECT_THAT(reports, ElementsAre(1, 2, 3));
}

TEST(PointerHistory, IsWhatFitsWhereThereIsMore)
{
    std::vector<int> reports = {9, 8, 7};
    TurnOldestFirst(reports, 100);
    EXPECT_THAT(reports, ElementsAre(7, 8, 9));
}

TEST(PointerHistory, IsWhatThereIsWhereMoreWouldFit)
{
    std::vector<int> reports = {2, 1, 0, 0};
    TurnOldestFirst(reports, 2);
    EXPECT_THAT(reports, ElementsAre(1, 2));
    TurnOldestFirst(reports, 0);
    EXPECT_THAT(reports, IsEmpty());
}

} // namespace
} // namespace lumora_pen
