#include "input/mouse_history.h"

#include <gmock/gmock.h>

#include <utility>

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using At = std::pair<double, double>;

class MouseHistoryTest : public testing::Test {
protected:
    std::vector<At> Take(const std::vector<MousePoint>& newestFirst, const MousePoint& cursor = {})
    {
        samples.clear();
        history.Take(newestFirst, cursor, samples);
        std::vector<At> places;
        for (const InputSample& sample : samples) {
            places.emplace_back(sample.x, sample.y);
        }
        return places;
    }

    MouseHistory history;
    std::vector<InputSample> samples;
};

TEST_F(MouseHistoryTest, NewPointsComeOldestFirst)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({{13, 12, 106}, {12, 11, 104}, {11, 10, 102}, {10, 10, 99}, {9, 9, 98}}),
                ElementsAre(At(11, 10), At(12, 11), At(13, 12)));
    EXPECT_EQ(samples[0].time, 102U);
    EXPECT_EQ(samples[0].pressure, FullPressure);
}

TEST_F(MouseHistoryTest, PointsAreTakenOnce)
{
    history.SkipTo({10, 10, 100});
    Take({{12, 11, 104}, {11, 10, 102}, {10, 10, 99}});
    EXPECT_THAT(Take({{14, 11, 108}, {13, 11, 106}, {12, 11, 104}, {11, 10, 102}}),
                ElementsAre(At(13, 11), At(14, 11)));
    EXPECT_THAT(Take({{14, 11, 108}, {13, 11, 106}}), IsEmpty());
}

TEST_F(MouseHistoryTest, ClockThatStandsStillLosesNoPoint)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({{11, 10, 100}, {10, 10, 100}}), ElementsAre(At(11, 10)));
    EXPECT_THAT(Take({{13, 10, 100}, {12, 10, 100}, {11, 10, 100}, {10, 10, 100}}),
                ElementsAre(At(12, 10), At(13, 10)));
}

TEST_F(MouseHistoryTest, PlaceWhereTheMouseHasBeenBeforeIsNew)
{
    history.SkipTo({10, 10, 100});
    Take({{11, 10, 102}, {10, 10, 100}});
    EXPECT_THAT(Take({{11, 10, 106}, {12, 10, 104}, {11, 10, 102}}), ElementsAre(At(12, 10), At(11, 10)));
}

TEST_F(MouseHistoryTest, HistoryThatNoLongerReachesBackIsTakenWhole)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({{30, 10, 130}, {20, 10, 120}}), ElementsAre(At(20, 10), At(30, 10)));
}

TEST_F(MouseHistoryTest, OlderPointsThanTheKnownOneAreNotNew)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({{30, 10, 130}, {20, 10, 100}, {19, 10, 99}}), ElementsAre(At(30, 10)));
}

// The cursor's stamp is that of the program's clock, the history's may be of the display's.
TEST_F(MouseHistoryTest, MouseThatHasMovedIsSeenThoughTheHistorysClockIsBehind)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({{30, 10, 97}, {20, 10, 96}}), ElementsAre(At(30, 10)));
    EXPECT_THAT(Take({{31, 10, 98}, {30, 10, 97}, {20, 10, 96}}), ElementsAre(At(31, 10)));
}

TEST_F(MouseHistoryTest, HistoryOfAnEarlierVisitIsNotTaken)
{
    history.SkipTo({10, 10, 1000});
    EXPECT_THAT(Take({{20, 10, 500}, {15, 10, 490}, {10, 10, 480}}, {20, 10, 1002}), ElementsAre(At(20, 10)));
    EXPECT_EQ(samples[0].time, 1002U);
    EXPECT_THAT(Take({{22, 10, 1001}, {20, 10, 1000}, {10, 10, 995}, {20, 10, 500}}),
                ElementsAre(At(22, 10)));
    EXPECT_THAT(Take({{20, 10, 1000}, {10, 10, 995}, {20, 10, 500}}, {20, 10, 1004}),
                ElementsAre(At(20, 10)));
}

TEST_F(MouseHistoryTest, HistoryWhoseClockWasSetBackLeavesItToTheCursor)
{
    history.SkipTo({10, 10, 100'000});
    EXPECT_THAT(Take({{13, 10, 502}, {12, 10, 501}}, {13, 10, 100'004}), ElementsAre(At(13, 10)));
    EXPECT_THAT(Take({{14, 10, 503}, {13, 10, 502}}, {14, 10, 100'008}), ElementsAre(At(14, 10)));
}

TEST_F(MouseHistoryTest, MouseThatRestsIsNotNewThoughItsPointHasAnotherTime)
{
    history.SkipTo({10, 10, 100});
    Take({{11, 10, 50}, {10, 10, 100}}); // a stamp from long ago
    EXPECT_THAT(Take({{11, 10, 130}, {10, 10, 100}, {9, 9, 90}}), IsEmpty());
}

TEST_F(MouseHistoryTest, HistoryThatHoldsNothingIsNone)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({{0, 0, 0}, {0, 0, 0}}, {20, 10, 104}), ElementsAre(At(20, 10)));
}

TEST_F(MouseHistoryTest, FirstLookTakesTheNewestPointAlone)
{
    EXPECT_THAT(Take({{30, 10, 130}, {20, 10, 120}}), ElementsAre(At(30, 10)));
}

TEST_F(MouseHistoryTest, SixteenBitsAreUnwrapped)
{
    history.SkipTo({5, 5, 100});
    EXPECT_THAT(Take({{65535, 64512, 104}, {32768, 32767, 103}, {-7, -1, 102}, {5, 5, 100}}),
                ElementsAre(At(-7, -1), At(-32768, 32767), At(-1, -1024)));
}

TEST_F(MouseHistoryTest, SkippedPlaceLeftOfTheFirstMonitorIsFoundAgain)
{
    history.SkipTo({-3, 7, 100});
    EXPECT_THAT(Take({{65535, 7, 102}, {65533, 7, 90}, {65000, 7, 80}}), ElementsAre(At(-1, 7)));
}

TEST_F(MouseHistoryTest, TimeMayWrap)
{
    history.SkipTo({10, 10, 0xFFFFFFF0});
    EXPECT_THAT(Take({{13, 10, 6}, {12, 10, 0xFFFFFFFA}, {11, 10, 0xFFFFFFE0}}),
                ElementsAre(At(12, 10), At(13, 10)));
}

TEST_F(MouseHistoryTest, PlacesOfTheHistoryThatWereNeverFilledAreNoPoints)
{
    for (const std::uint32_t time : {1000U, 0x90000000U}) {
        history.SkipTo({10, 10, time - 100});
        EXPECT_THAT(Take({{12, 10, time}, {0, 0, 0}, {0, 0, 0}}), ElementsAre(At(12, 10))) << time;
    }
}

TEST_F(MouseHistoryTest, WithoutAHistoryTheCursorServes)
{
    history.SkipTo({10, 10, 100});
    EXPECT_THAT(Take({}, {10, 10, 101}), IsEmpty());
    EXPECT_THAT(Take({}, {-20, 30, 102}), ElementsAre(At(-20, 30)));
    EXPECT_EQ(samples[0].time, 102U);
    EXPECT_THAT(Take({}, {-20, 30, 103}), IsEmpty());
}

TEST_F(MouseHistoryTest, HistoryThatComesBackGoesOnFromTheCursor)
{
    history.SkipTo({10, 10, 100});
    Take({}, {20, 10, 104});
    EXPECT_THAT(Take({{22, 10, 105}, {20, 10, 102}, {15, 10, 101}}), ElementsAre(At(22, 10)));
}

TEST_F(MouseHistoryTest, NoMoreThanTheSystemKeepsIsTaken)
{
    history.SkipTo({-1, -1, 1});
    std::vector<MousePoint> points;
    for (std::int32_t i = 0; i < 100; ++i) {
        points.push_back({100 - i, 0, static_cast<std::uint32_t>(1000 - i)});
    }
    const auto places = Take(points);
    ASSERT_EQ(places.size(), MostMousePoints);
    EXPECT_EQ(places.front(), At(37, 0));
    EXPECT_EQ(places.back(), At(100, 0));
}

TEST_F(MouseHistoryTest, LiftIsWhereTheMouseHasCome)
{
    history.SkipTo({10, 10, 100});
    Take({{11, 12, 102}, {10, 10, 100}});
    const InputSample lifted = history.Lift(150);
    EXPECT_EQ(At(lifted.x, lifted.y), At(11, 12));
    EXPECT_EQ(lifted.pressure, 0);
    EXPECT_EQ(lifted.time, 150U);
}

} // namespace
} // namespace lumora_pen
