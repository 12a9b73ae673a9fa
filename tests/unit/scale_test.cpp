// The factor on every coordinate and width: what sets it, how products are cut and where they saturate.
#include "support/engine_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM::test {
namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

class Scale : public EngineTest {
protected:
    Scale()
    {
        Set([](Params& params) {
            params.usePressure = 0;
            params.cursor = 0;
        });
    }

    void AddSegment(Point from = {101, -101}, Point to = {-99, 99}) { Add({Sample(from), Sample(to)}); }

    void SetBrushSize(std::uint32_t brushSize)
    {
        Set([=](Params& params) { params.brushSize = brushSize; });
    }
};

TEST_F(Scale, IsOneAtFirst)
{
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{DrawLine({101, -101}, {-99, 99}, 10, Ink)});
}

TEST_F(Scale, OfZeroIsIgnored)
{
    AddSegment();
    drawing.SetScale(2.0);
    drawing.SetScale(0.0);
    drawing.SetScale(-0.0);
    EXPECT_EQ(Drawn(), Calls{DrawLine({202, -202}, {-198, 198}, 20, Ink)});
}

TEST_F(Scale, BelowZeroIsIgnored)
{
    AddSegment();
    drawing.SetScale(2.0);
    drawing.SetScale(-0.5);
    drawing.SetScale(-std::numeric_limits<double>::infinity());
    EXPECT_EQ(Drawn(), Calls{DrawLine({202, -202}, {-198, 198}, 20, Ink)});
}

TEST_F(Scale, NotANumberIsIgnored)
{
    AddSegment();
    drawing.SetScale(2.0);
    drawing.SetScale(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(Drawn(), Calls{DrawLine({202, -202}, {-198, 198}, 20, Ink)});
}

TEST_F(Scale, OfAHalfCutsCoordinatesTowardZero)
{
    AddSegment();
    drawing.SetScale(0.5);
    EXPECT_EQ(Drawn(), Calls{DrawLine({50, -50}, {-49, 49}, 5, Ink)});
}

TEST_F(Scale, OfAHalfCutsWidths)
{
    AddSegment({2, 2}, {4, 4});
    drawing.SetScale(0.5);
    SetBrushSize(7);
    EXPECT_EQ(Drawn(), Calls{DrawLine({1, 1}, {2, 2}, 3, Ink)});
    SetBrushSize(1);
    EXPECT_EQ(Drawn(), Calls{DrawLine({1, 1}, {2, 2}, 0, Ink)});
}

TEST_F(Scale, AppliesAfterTheOffset)
{
    Set([](Params& params) { params.useOffset = 1; });
    AddSegment({10, 20}, {30, 151});
    drawing.SetScale(0.5);
    EXPECT_EQ(Drawn(), Calls{DrawLine({5, -15}, {15, 50}, 5, Ink)});
}

TEST_F(Scale, AppliesToTheOutlineWithItsRimAndToTheCore)
{
    Set([](Params& params) {
        params.line = 0;
        params.outline = 1;
    });
    SetBrushSize(9);
    AddSegment({2, 2}, {4, 4});
    drawing.SetScale(0.5);
    EXPECT_EQ(Drawn(), (Calls{DrawLine({1, 1}, {2, 2}, 5, White), DrawLine({1, 1}, {2, 2}, 4, Ink),
                              EraseLine({1, 1}, {2, 2}, 2, Ink)}));
}

TEST_F(Scale, ExtremeCoordinatesStayAtScaleOne)
{
    AddSegment({Lowest, Highest}, {Highest, Lowest});
    EXPECT_EQ(Drawn(), Calls{DrawLine({Lowest, Highest}, {Highest, Lowest}, 10, Ink)});
}

TEST_F(Scale, ExtremeCoordinatesSaturate)
{
    AddSegment({Lowest, Highest}, {Highest, Lowest});
    drawing.SetScale(2.0);
    EXPECT_EQ(Drawn(), Calls{DrawLine({Lowest, Highest}, {Highest, Lowest}, 20, Ink)});
}

TEST_F(Scale, WidthsUseAll32BitsAfterScalingAndThenSaturate)
{
    AddSegment({2, 2}, {4, 4});
    SetBrushSize(0x7FFFFFFF);
    drawing.SetScale(1.5);
    EXPECT_EQ(Drawn(), Calls{DrawLine({3, 3}, {6, 6}, 0xBFFFFFFE, Ink)});
    drawing.SetScale(4.0);
    EXPECT_EQ(Drawn(), Calls{DrawLine({8, 8}, {16, 16}, 0xFFFFFFFF, Ink)});
}

TEST_F(Scale, TinyScaleDrawsEverythingAtTheOrigin)
{
    AddSegment();
    drawing.SetScale(std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(Drawn(), Calls{DrawLine({0, 0}, {0, 0}, 0, Ink)});
}

TEST_F(Scale, InfinityIsDefined)
{
    AddSegment({5, -5}, {-5, 5});
    SetBrushSize(0); // zero times infinity is not a number
    drawing.SetScale(std::numeric_limits<double>::infinity());
    EXPECT_EQ(Drawn(), Calls{DrawLine({Highest, Lowest}, {Lowest, Highest}, 0, Ink)});
}

} // namespace
} // namespace zq::LM::test
