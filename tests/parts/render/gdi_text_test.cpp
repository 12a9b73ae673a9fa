// The text of the GDI back-end: a grey shadow below the text itself.
#include "parts/render/gdi_test.h"

#include <string>
#include <vector>

namespace zq::LM {

namespace {

using test::DrawingCalls;
using test::Green;
using test::Picture;
using test::Red;
using testing::Contains;
using testing::ElementsAre;

constexpr COLORREF Grey = 0x00C0C0C0;

class GdiTextTest : public test::GdiTest {
protected:
    GdiTextTest() : GdiTest(160, 60) {}

    std::vector<std::string> Draw(const wchar_t* text, int x, int y, unsigned colour)
    {
        DrawingCalls calls;
        calls.Name(bitmap.DC(), "dc");
        gdi.DrawText(text, x, y, colour);
        return calls.Take();
    }
};

TEST_F(GdiTextTest, IsThreeGreyCopiesAndThenTheColour)
{
    EXPECT_THAT(Draw(L"Ink 1", 10, 20, 0x00102030),
                ElementsAre("SetBkMode(dc, 1)", "SetTextColor(dc, 0xC0C0C0)",
                            "TextOutW(dc, 11, 20, \"Ink 1\", 5)", "TextOutW(dc, 11, 21, \"Ink 1\", 5)",
                            "TextOutW(dc, 10, 21, \"Ink 1\", 5)", "SetTextColor(dc, 0x102030)",
                            "TextOutW(dc, 10, 20, \"Ink 1\", 5)"));
}

TEST_F(GdiTextTest, PassesTheAlphaByteOnAsItIs)
{
    EXPECT_THAT(Draw(L"", 1, 1, 0xFF0000FF), Contains("SetTextColor(dc, 0xFF0000FF)"));
}

TEST_F(GdiTextTest, ShowsTheColourOverItsShadowOnTheBackgroundThatWasThere)
{
    SelectObject(bitmap.DC(), GetStockObject(SYSTEM_FONT)); // a bitmap font: no mixed pixels
    gdi.DrawText(L"HHHHH", 10, 20, Red);
    const Picture picture = bitmap.Look();
    const std::string print = picture.Print(Green, {0, 0, 160, 60});
    EXPECT_GT(picture.Count(Red), 40U) << print;
    EXPECT_GT(picture.Count(Grey), 10U) << print;
    const RECT bounds = picture.BoundsOfOther(Green);
    EXPECT_GE(bounds.left, 10) << print;
    EXPECT_GE(bounds.top, 20) << print;
    EXPECT_LT(bounds.right, 160) << print;
    EXPECT_LT(bounds.bottom, 60) << print;
}

} // namespace

} // namespace zq::LM
