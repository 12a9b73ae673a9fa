// The hover cross-hair.
#include "support/engine_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM::test {
namespace {

using Cursor = EngineTest;

Calls CrossHair(Point pen, std::uint32_t ink, std::uint32_t contrast)
{
    return {DrawLine({pen.x, pen.y - 7}, {pen.x, pen.y + 7}, 4, contrast),
            DrawLine({pen.x - 7, pen.y}, {pen.x + 7, pen.y}, 4, contrast),
            DrawLine({pen.x, pen.y - 5}, {pen.x, pen.y + 5}, 2, ink),
            DrawLine({pen.x - 5, pen.y}, {pen.x + 5, pen.y}, 2, ink)};
}

TEST_F(Cursor, IsACrossOnAWiderContrastCross)
{
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn(),
              (Calls{DrawLine({300, 393}, {300, 407}, 4, White), DrawLine({293, 400}, {307, 400}, 4, White),
                     DrawLine({300, 395}, {300, 405}, 2, Ink), DrawLine({295, 400}, {305, 400}, 2, Ink)}));
}

TEST_F(Cursor, HasABlackRimAroundLightInk)
{
    Set([](Params& params) { params.inkColor = 0x00FFFFFF; });
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn(), CrossHair({300, 400}, White, Black));
}

TEST_F(Cursor, StandsAtTheNewestSample)
{
    Add({Sample({1, 1}, Hovering), Sample({300, 400}, Hovering), Sample({50, 60}, Hovering)});
    EXPECT_EQ(Drawn(), CrossHair({50, 60}, Ink, White));
}

TEST_F(Cursor, ShowsAtNegativePressure)
{
    AddAt(0, {300, 400}, -5);
    EXPECT_EQ(Drawn(), CrossHair({300, 400}, Ink, White));
}

TEST_F(Cursor, IsGoneWhileThePenTouches)
{
    Add({Sample({300, 400}, Hovering), Sample({301, 401}, 1)});
    EXPECT_EQ(Drawn(), Calls{});
}

TEST_F(Cursor, OffsetDoesNotMoveIt)
{
    Set([](Params& params) { params.useOffset = 1; });
    Add({Sample({100, 200}), Sample({110, 210}), Sample({300, 400}, Hovering)});
    Calls expected = {DrawLine({100, 150}, {110, 160}, 10, Ink)};
    for (const Call& call : CrossHair({300, 400}, Ink, White)) {
        expected.push_back(call);
    }
    EXPECT_EQ(Drawn(), expected);
}

TEST_F(Cursor, SizeDoesNotFollowTheBrush)
{
    Set([](Params& params) {
        params.brushSize = 200;
        params.minBrushSize = 100;
    });
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn(), CrossHair({300, 400}, Ink, White));
}

TEST_F(Cursor, FollowsTheScale)
{
    drawing.SetScale(2.0);
    AddAt(0, {300, 400}, Hovering);
    EXPECT_EQ(Drawn(),
              (Calls{DrawLine({600, 786}, {600, 814}, 8, White), DrawLine({586, 800}, {614, 800}, 8, White),
                     DrawLine({600, 790}, {600, 810}, 4, Ink), DrawLine({590, 800}, {610, 800}, 4, Ink)}));
}

TEST_F(Cursor, CoordinatesScaleTowardZero)
{
    drawing.SetScale(0.5);
    AddAt(0, {1, -1}, Hovering);
    EXPECT_EQ(Drawn(), (Calls{DrawLine({0, -4}, {0, 3}, 2, White), DrawLine({-3, 0}, {4, 0}, 2, White),
                              DrawLine({0, -3}, {0, 2}, 1, Ink), DrawLine({-2, 0}, {3, 0}, 1, Ink)}));
}

TEST_F(Cursor, ArmsWrapAtTheEndsOfTheRange)
{
    constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
    AddAt(0, {Highest, Lowest}, Hovering);
    EXPECT_EQ(Drawn(), (Calls{DrawLine({Highest, Highest - 6}, {Highest, Lowest + 7}, 4, White),
                              DrawLine({Highest - 7, Lowest}, {Lowest + 6, Lowest}, 4, White),
                              DrawLine({Highest, Highest - 4}, {Highest, Lowest + 5}, 2, Ink),
                              DrawLine({Highest - 5, Lowest}, {Lowest + 4, Lowest}, 2, Ink)}));
}

TEST_F(Cursor, VanishesWithTheSamplesInkLife)
{
    AddAt(0, {300, 400}, Hovering);
    MoveClock(99);
    EXPECT_EQ(Drawn().size(), 4U);
    MoveClock(100);
    EXPECT_EQ(Drawn(), Calls{});
}

} // namespace
} // namespace zq::LM::test
