// The bitmap of the ink that has dried.
#include "canvas_pixels.h"

#include "board/gdi_plus.h"

#include "support/hook/import_hook.h"
#include "support/library/object_counts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace lumora_pen::test {
namespace {

using zq::LM::test::Hook;

constexpr PixelRectangle Area = {-100, -50, 300, 150};

class Canvas : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(canvas.Make(Area)); }

    PixelRectangle Draw(const std::vector<InkPoint>& points) { return canvas.Draw(points, Red); }
    std::uint32_t At(int x, int y) const { return PixelOf(canvas, x, y); }

    HMODULE program = GetModuleHandleW(nullptr);
    DryCanvas canvas;
};

TEST_F(Canvas, IsAsGoodAsSeeThroughAtFirst)
{
    EXPECT_EQ(canvas.Area(), Area);
    EXPECT_EQ(At(-100, -50), DryCanvas::Ground);
    EXPECT_EQ(InkedPixels(canvas), 0U);
}

TEST_F(Canvas, SegmentIsOpaqueInkAtItsPlaceOnTheScreen)
{
    Draw({{-50, -20, 10, 0}, {50, -20, 10, 0}});
    for (const int x : {-50, 0, 50}) {
        EXPECT_EQ(At(x, -20), RedInk);
        EXPECT_EQ(At(x, -17), RedInk);
        EXPECT_EQ(At(x, -12), DryCanvas::Ground);
        EXPECT_EQ(At(x, -28), DryCanvas::Ground);
    }
}

TEST_F(Canvas, SegmentIsAsWideAsItsNewerEnd)
{
    Draw({{0, 20, 4, 0}, {50, 20, 30, 0}, {150, 20, 4, 0}});
    EXPECT_EQ(At(25, 32), RedInk);
    EXPECT_EQ(At(100, 21), RedInk);
    EXPECT_EQ(At(100, 25), DryCanvas::Ground);
}

TEST_F(Canvas, SegmentHasRoundEnds)
{
    Draw({{0, 0, 40, 0}, {100, 0, 40, 0}});
    EXPECT_EQ(At(116, 0), RedInk);
    EXPECT_EQ(At(-16, 0), RedInk);
    EXPECT_EQ(At(118, 16), DryCanvas::Ground); // a square end would have it
}

TEST_F(Canvas, SinglePointIsARoundDot)
{
    Draw({{100, 50, 20, 0}});
    EXPECT_EQ(At(100, 50), RedInk);
    EXPECT_EQ(At(107, 50), RedInk);
    EXPECT_EQ(At(109, 59), DryCanvas::Ground);
    EXPECT_EQ(At(113, 50), DryCanvas::Ground);
}

TEST_F(Canvas, PenThatRestsLeavesADotToo)
{
    Draw({{100, 50, 20, 0}, {100, 50, 20, 0}, {100.1, 50, 20, 0}});
    EXPECT_EQ(At(107, 50), RedInk);
    EXPECT_EQ(At(109, 59), DryCanvas::Ground);
}

// Else it would be brighter than its colour where it is blended.
TEST_F(Canvas, PixelsAreMultipliedByTheirAlpha)
{
    canvas.Draw(std::vector<InkPoint>{{-60, -30, 9, 0}, {211.3, 97.7, 9, 0}, {0, 140, 9, 0}},
                {255, 255, 255});
    for (int y = Area.top; y < Area.bottom; ++y) {
        for (int x = Area.left; x < Area.right; ++x) {
            const std::uint32_t pixel = At(x, y);
            const std::uint32_t alpha = pixel >> 24;
            ASSERT_LE((pixel >> 16) & 0xFF, alpha);
            ASSERT_LE(pixel & 0xFF, alpha);
            ASSERT_GE(alpha, 1U); // or the mouse would fall through
        }
    }
}

// Wine has no antialiasing of its own to look at.
TEST_F(Canvas, AsksForSmoothEdges)
{
    using Gdiplus::DllExports::GdipSetSmoothingMode;
    Hook<"GdipSetSmoothingMode", decltype(GdipSetSmoothingMode)> smoothing(program);
    std::vector<Gdiplus::SmoothingMode> modes;
    smoothing.Before([&](Gdiplus::GpGraphics*, Gdiplus::SmoothingMode mode) { modes.push_back(mode); });
    ASSERT_TRUE(canvas.Make(Area));
    EXPECT_EQ(modes, std::vector{Gdiplus::SmoothingModeAntiAlias});
}

TEST_F(Canvas, NothingIsDrawnOutsideWhatIsToldToHaveChanged)
{
    const PixelRectangle changed = Draw({{20.3, 30.7, 7, 0}, {80.2, 61.4, 13, 0}, {90, 20, 3, 0}});
    EXPECT_FALSE(changed.IsEmpty());
    std::size_t inside = 0;
    for (int y = changed.top; y < changed.bottom; ++y) {
        for (int x = changed.left; x < changed.right; ++x) {
            inside += At(x, y) != DryCanvas::Ground ? 1 : 0;
        }
    }
    EXPECT_EQ(inside, InkedPixels(canvas));
}

TEST_F(Canvas, SegmentFromAndToFarAwayCrossesAtItsRow)
{
    Draw({{-1e12, 40, 6, 0}, {1e12, 40, 6, 0}});
    EXPECT_EQ(At(-100, 40), RedInk);
    EXPECT_EQ(At(100, 40), RedInk);
    EXPECT_EQ(At(299, 40), RedInk);
    EXPECT_EQ(At(100, 50), DryCanvas::Ground);
}

TEST_F(Canvas, InkBesideTheScreenReachesIn)
{
    Draw({{-20, -55, 20, 0}, {20, -55, 20, 0}});
    EXPECT_EQ(At(0, -50), RedInk);
    Draw({{304, 60, 20, 0}});
    EXPECT_EQ(At(299, 60), RedInk);
}

TEST_F(Canvas, PositionsBeyondReasonDrawNothingAndHarmNothing)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    const double most = std::numeric_limits<double>::max();
    for (const double value : {none, endless, -endless, most, -most, 1e30, -1e30}) {
        Draw({{value, value, 6, 0}});
        Draw({{value, 2e4, 6, 0}, {value, 3e4, 6, 0}});
        EXPECT_TRUE(Draw({{5e5, value, 6, 0}, {6e5, value, 6, 0}}).IsEmpty());
    }
    EXPECT_EQ(InkedPixels(canvas), 0U);
    Draw({{0, 0, 6, 0}, {50, 0, 6, 0}});
    EXPECT_EQ(At(25, 0), RedInk);
}

TEST_F(Canvas, WidthsBeyondReasonAreBounded)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    Draw({{0, 0, 6, 0}, {50, 0, none, 0}});
    Draw({{0, 20, 6, 0}, {50, 20, -8, 0}});
    EXPECT_NE(At(25, 20), DryCanvas::Ground);
    EXPECT_EQ(At(25, 24), DryCanvas::Ground);
    Draw({{0, 0, 6, 0}, {50, 0, 1e30, 0}});
    EXPECT_EQ(At(299, 149), RedInk);
}

TEST_F(Canvas, NoPointsDrawNothing) { EXPECT_TRUE(Draw({}).IsEmpty()); }

TEST_F(Canvas, IsWipedWhereInkIs)
{
    const PixelRectangle first = Draw({{0, 0, 6, 0}, {50, 0, 6, 0}});
    const PixelRectangle second = Draw({{200, 100, 6, 0}});
    EXPECT_EQ(canvas.Wipe(), Around(first, second));
    EXPECT_EQ(InkedPixels(canvas), 0U);
    EXPECT_TRUE(canvas.Wipe().IsEmpty());
}

TEST_F(Canvas, KeepsItsInkWhereItWasWhenItMoves)
{
    Draw({{-50, -20, 10, 0}, {50, -20, 10, 0}});
    ASSERT_TRUE(canvas.MoveTo({0, -200, 1000, 100}));
    EXPECT_EQ(canvas.Area(), (PixelRectangle{0, -200, 1000, 100}));
    EXPECT_EQ(At(0, -20), RedInk);
    EXPECT_EQ(At(50, -20), RedInk);
    EXPECT_EQ(At(50, -40), DryCanvas::Ground);
    Draw({{900, -150, 10, 0}});
    EXPECT_EQ(At(900, -150), RedInk);
    canvas.Wipe();
    EXPECT_EQ(InkedPixels(canvas), 0U);
}

TEST_F(Canvas, StaysAsItIsWhenThereIsNoMemoryToMove)
{
    Draw({{0, 0, 6, 0}, {50, 0, 6, 0}});
    Hook<"CreateDIBSection", decltype(CreateDIBSection)> bitmaps(program);
    bitmaps.Fail(nullptr);
    EXPECT_FALSE(canvas.MoveTo({0, 0, 4000, 4000}));
    EXPECT_EQ(canvas.Area(), Area);
    EXPECT_EQ(At(25, 0), RedInk);
}

TEST_F(Canvas, WithoutMemoryIsNoneAndDrawsNothing)
{
    Hook<"CreateDIBSection", decltype(CreateDIBSection)> bitmaps(program);
    bitmaps.Fail(nullptr);
    EXPECT_FALSE(canvas.Make(Area));
    EXPECT_FALSE(canvas.IsMade());
    EXPECT_TRUE(canvas.Area().IsEmpty());
    EXPECT_EQ(canvas.Pixels(), nullptr);
    EXPECT_EQ(canvas.DC(), nullptr);
    EXPECT_TRUE(Draw({{0, 0, 6, 0}, {50, 0, 6, 0}}).IsEmpty());
    EXPECT_TRUE(canvas.Wipe().IsEmpty());
}

TEST_F(Canvas, WithoutADeviceContextIsNone)
{
    Hook<"CreateCompatibleDC", decltype(CreateCompatibleDC)> contexts(program);
    contexts.Fail(nullptr);
    EXPECT_FALSE(canvas.Make(Area));
}

TEST_F(Canvas, OfNoAreaIsNone) { EXPECT_FALSE(canvas.Make({0, 0, 0, 100})); }

TEST(CanvasWithoutGdiPlus, IsNone)
{
    Hook<"GdiplusStartup", decltype(Gdiplus::GdiplusStartup)> start(GetModuleHandleW(nullptr));
    start.Fail(Gdiplus::GenericError);
    DryCanvas canvas;
    EXPECT_FALSE(canvas.Make(Area));
}

TEST_F(Canvas, GivesBackWhatItTakes)
{
    const auto useIt = [this] {
        canvas.Make(Area);
        Draw({{0, 0, 6, 0}, {50, 0, 6, 0}});
        canvas.MoveTo({0, 0, 400, 400});
        canvas.Free();
    };
    useIt();
    const std::size_t before = zq::LM::test::GdiObjects();
    for (int i = 0; i < 5; ++i) {
        useIt();
    }
    EXPECT_EQ(zq::LM::test::GdiObjects(), before);
}

} // namespace
} // namespace lumora_pen::test
