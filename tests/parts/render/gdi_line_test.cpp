// The lines of the GDI back-end: what it asks of GDI+ and GDI, and the pixels that come of it.
#include "render/gdi_lines.h"

#include "parts/render/gdi_test.h"

namespace zq::LM {

namespace {

using test::DrawingCalls;
using test::Green;
using test::Picture;
using test::Red;
using testing::Contains;
using testing::ElementsAre;

constexpr unsigned OpaqueRed = 0xFF0000FF;

class GdiLineTest : public test::GdiTest {};

// What DrawLine asks of the system, as one list.
class GdiLineCallsTest : public GdiLineTest {
protected:
    GdiLineCallsTest() { calls.Name(bitmap.DC(), "dc"); }

    std::vector<std::string> Draw(unsigned width1, unsigned colour1, unsigned width2, unsigned colour2)
    {
        gdi.DrawLine(10, 20, width1, colour1, 30, 40, width2, colour2);
        return calls.Take();
    }

    // For a pen of this colour and width, and a segment from and to these points.
    static std::vector<std::string> CallsFor(const std::string& pen, const std::string& segment)
    {
        return {"GdipCreateFromHDC(dc, *)",
                "GdipCreatePen1(" + pen + ", 0, *)",
                "GdipSetPenStartCap(pen, 2)",
                "GdipSetPenEndCap(pen, 2)",
                "GdipDrawLineI(graphics, pen, " + segment + ")",
                "GdipDeletePen(pen)",
                "GdipDeleteGraphics(graphics)"};
    }

    DrawingCalls calls;
};

TEST_F(GdiLineCallsTest, EachSegmentMakesAndDeletesItsGraphicsAndPen)
{
    const auto expected = CallsFor("0xFFFF0000, 1.5", "10, 20, 30, 40");
    EXPECT_EQ(Draw(1, OpaqueRed, 2, OpaqueRed), expected);
    EXPECT_EQ(Draw(1, OpaqueRed, 2, OpaqueRed), expected) << "a second segment keeps nothing of the first";
}

TEST_F(GdiLineCallsTest, RedAndBlueChangePlacesAndAlphaStays)
{
    EXPECT_THAT(Draw(2, 0x80112233, 2, 0x80112233), Contains("GdipCreatePen1(0x80332211, 2, 0, *)"));
}

TEST_F(GdiLineCallsTest, ColoursOfTheEndsAreMixed)
{
    EXPECT_THAT(Draw(2, 0xFF0000FF, 2, 0xFF00FF00), Contains("GdipCreatePen1(0xFFFF7F00, 2, 0, *)"));
}

TEST_F(GdiLineCallsTest, APenIsNoWiderThanAnyScreen)
{
    EXPECT_THAT(Draw(0x7FFFFFFF, OpaqueRed, 0x7FFFFFFF, OpaqueRed),
                Contains("GdipCreatePen1(0xFFFF0000, 100000, 0, *)"));
}

TEST_F(GdiLineCallsTest, AnInvisibleLineIsAskedForLikeAnyOther)
{
    EXPECT_EQ(Draw(6, 0x00FF00FF, 6, 0x00FF00FF), CallsFor("0xFF00FF, 6", "10, 20, 30, 40"));
}

TEST_F(GdiLineCallsTest, AnInvisibleLineWiderThanAnyScreenIsAskedForWithAThinPen)
{
    EXPECT_EQ(Draw(0x7FFFFFFF, 0x00FF00FF, 0x7FFFFFFF, 0x00FF00FF),
              CallsFor("0xFF00FF, 1", "10, 20, 30, 40"));
}

TEST_F(GdiLineCallsTest, ALineWithoutLengthIsFollowedByItsDot)
{
    gdi.DrawLine(60, 50, 40, OpaqueRed, 60, 50, 40, OpaqueRed);
    auto expected = CallsFor("0xFFFF0000, 40", "60, 50, 60, 50");
    expected.insert(expected.end() - 2, "GdipDrawLine(graphics, pen, 60, 50, 60.1, 50)");
    EXPECT_EQ(calls.Take(), expected);
}

TEST_F(GdiLineCallsTest, AnInvisibleLineWithoutLengthHasNoDot)
{
    gdi.DrawLine(60, 50, 40, 0x00FF00FF, 60, 50, 40, 0x00FF00FF);
    EXPECT_EQ(calls.Take(), CallsFor("0xFF00FF, 40", "60, 50, 60, 50"));
}

TEST_F(GdiLineCallsTest, AFailedStepEndsNothingEarly)
{
    calls.Record<"GdipCreateFromHDC">(Gdiplus::DllExports::GdipCreateFromHDC).Fail(Gdiplus::GenericError);
    calls.Record<"GdipCreatePen1">(Gdiplus::DllExports::GdipCreatePen1).Fail(Gdiplus::GenericError);
    EXPECT_THAT(Draw(2, OpaqueRed, 2, OpaqueRed),
                ElementsAre("GdipCreateFromHDC(dc, *)", "GdipCreatePen1(0xFFFF0000, 2, 0, *)",
                            "GdipSetPenStartCap(null, 2)", "GdipSetPenEndCap(null, 2)",
                            "GdipDrawLineI(null, null, 10, 20, 30, 40)", "GdipDeletePen(null)",
                            "GdipDeleteGraphics(null)"));
    EXPECT_EQ(bitmap.Look().Count(Green), 120U * 100U);
}

TEST_F(GdiLineTest, IsDrawnInItsColourAndWidth)
{
    gdi.DrawLine(40, 50, 10, OpaqueRed, 80, 50, 10, OpaqueRed);
    const Picture picture = bitmap.Look();
    EXPECT_EQ(picture.At(60, 50), Red);
    EXPECT_EQ(picture.At(60, 46), Red);
    EXPECT_EQ(picture.At(60, 53), Red);
    EXPECT_EQ(picture.At(60, 43), Green);
    EXPECT_EQ(picture.At(60, 57), Green);
}

TEST_F(GdiLineTest, HasRoundEnds)
{
    gdi.DrawLine(40, 50, 20, OpaqueRed, 80, 50, 20, OpaqueRed);
    const Picture picture = bitmap.Look();
    EXPECT_EQ(picture.At(32, 50), Red) << picture.Print(Green, {0, 0, 120, 100});
    EXPECT_EQ(picture.At(88, 50), Red);
    EXPECT_EQ(picture.At(32, 42), Green) << "a square end would cover this corner";
    EXPECT_EQ(picture.At(88, 58), Green);
}

TEST_F(GdiLineTest, FromAPointToItselfIsARoundDot)
{
    gdi.DrawLine(60, 50, 40, OpaqueRed, 60, 50, 40, OpaqueRed);
    const Picture picture = bitmap.Look();
    EXPECT_EQ(picture.At(60, 50), Red);
    EXPECT_EQ(picture.At(44, 50), Red);
    EXPECT_EQ(picture.At(76, 50), Red);
    EXPECT_EQ(picture.At(60, 34), Red);
    EXPECT_EQ(picture.At(44, 34), Green);
    EXPECT_EQ(picture.At(76, 66), Green);
}

TEST_F(GdiLineTest, WithAlpha0LeavesTheBitmapAsItWasWhateverItsWidthAndLength)
{
    for (const unsigned width : {30U, 0xFFFFFFFFU}) { // the second is wider than any screen
        gdi.DrawLine(20, 50, width, 0x00FF00FF, 100, 60, width, 0x00FF00FF);
        gdi.DrawLine(60, 50, width, 0x00FF00FF, 60, 50, width, 0x00FF00FF);
        EXPECT_EQ(bitmap.Look().Count(Green), 120U * 100U) << width;
    }
}

TEST_F(GdiLineTest, WithHalfAlphaLetsTheBitmapShine)
{
    gdi.DrawLine(20, 50, 30, 0x800000FF, 100, 50, 30, 0x800000FF);
    const COLORREF mixed = bitmap.Look().At(60, 50);
    EXPECT_NEAR(GetRValue(mixed), 128, 2);
    EXPECT_NEAR(GetGValue(mixed), 64, 2);
    EXPECT_NEAR(GetBValue(mixed), 0, 2);
}

GdiLine RedLine(unsigned width1, unsigned width2)
{
    return {.x1 = 40, .y1 = 50, .width1 = width1, .x2 = 80, .y2 = 50, .width2 = width2, .colour = OpaqueRed};
}

TEST_F(GdiLineCallsTest, APlainLineUsesAnInsideFramePenAndGivesItBack)
{
    DrawPlainLine(bitmap.DC(), RedLine(1, 2));
    EXPECT_THAT(calls.Take(),
                ElementsAre("CreatePen(6, 1, 255)", "SelectObject(dc, pen)", "MoveToEx(dc, 40, 50, null)",
                            "LineTo(dc, 80, 50)", "SelectObject(dc, previous)", "DeleteObject(pen)"));
}

TEST_F(GdiLineTest, APlainLineOfWidths1And2IsOnePixelWide)
{
    DrawPlainLine(bitmap.DC(), RedLine(1, 2));
    const Picture picture = bitmap.Look();
    EXPECT_EQ(picture.At(60, 50), Red);
    EXPECT_EQ(picture.At(60, 49), Green);
    EXPECT_EQ(picture.At(60, 51), Green);
}

TEST_F(GdiLineTest, APlainLineIgnoresTheAlphaByte)
{
    GdiLine line = RedLine(9, 9);
    line.colour = 0x000000FF;
    DrawPlainLine(bitmap.DC(), line);
    EXPECT_EQ(bitmap.Look().At(60, 50), Red);
}

} // namespace

} // namespace zq::LM
