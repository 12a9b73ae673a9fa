// Strokes of outline alone, which the back-ends show differently on purpose.
#include "library/back_ends/coverage.h"
#include "support/library/back_end_test.h"

namespace zq::LM::test {

namespace {

// A rim of one pixel, a band of two, and a core of 16 pixels that is erased.
template <const BackEnd& Which> class HollowStroke : public BackEndTest {
protected:
    HollowStroke() : BackEndTest(Which) {}

    void SetUp() override
    {
        BackEndTest::SetUp();
        params.line = 0;
        params.outline = 1;
        params.brushSize = 20;
        Apply();
        Stroke(200, 400, 200);
    }
};

using HollowStrokeOnDirect2D = HollowStroke<Direct2DBackEnd>;
using HollowStrokeOnGDI = HollowStroke<GDIBackEnd>;
using HollowStrokeOnDirectComposition = HollowStroke<DirectCompositionBackEnd>;

TEST_F(HollowStrokeOnDirect2D, IsSeenThroughInItsCore)
{
    const Picture picture = Look();
    EXPECT_EQ(picture.At(300, 200), Green);
    EXPECT_EQ(picture.At(300, 194), Green);
    EXPECT_EQ(picture.At(300, 205), Green);
    EXPECT_NEAR(CountInColumn(picture, 300, Red), 4, EdgeTolerance);
    EXPECT_NEAR(CountInColumn(picture, 300, White), 2, EdgeTolerance);
}

TEST_F(HollowStrokeOnDirect2D, LetsTheMouseThroughItsCoreAndItsBand)
{
    EXPECT_EQ(WindowFromPoint({300, 200}), backdrop.Window());
    EXPECT_EQ(WindowFromPoint({300, 191}), backdrop.Window());
}

TEST_F(HollowStrokeOnGDI, KeepsItsCoreBecauseErasingIsInvisible)
{
    const Picture picture = Look();
    EXPECT_EQ(picture.At(300, 200), Red);
    EXPECT_NEAR(CountInColumn(picture, 300, Red), 20, EdgeTolerance);
    EXPECT_NEAR(CountInColumn(picture, 300, White), 2, EdgeTolerance);
}

TEST_F(HollowStrokeOnDirectComposition, IsOneHalfTransparentPath)
{
    clock.Advance(params.inkDecayTime);
    InputAndPaint({Sample(200, 100), Sample(400, 300)}); // a path takes no level steps
    const Frame& frame = graphics->LastFrame();
    const std::uint32_t core = frame.At(300, 200);
    EXPECT_NEAR(core >> 24, 128, 1);          // alpha
    EXPECT_NEAR((core >> 16) & 0xFF, 128, 1); // red by half, premultiplied
    EXPECT_EQ(core & 0xFFFF, 0U);
    EXPECT_EQ(frame.Count(0xFFFFFFFF), 0U) << "no rim";
}

} // namespace

} // namespace zq::LM::test
