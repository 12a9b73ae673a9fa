// The memory surface: how it is made, fails, is given back and is shown.
#include "render/memory_surface.h"

#include "parts/render/gdi_test.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM {

namespace {

using test::DrawingCalls;
using test::Green;
using test::Picture;
using test::Red;
using test::TestBitmap;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr COLORREF Blue = 0x00FF0000;

constexpr HWND TheScreen = nullptr;

void Fill(HDC dc, const RECT& rectangle, COLORREF colour)
{
    HBRUSH brush = CreateSolidBrush(colour);
    FillRect(dc, &rectangle, brush);
    DeleteObject(brush);
}

SIZE BitmapSize(HDC dc)
{
    BITMAP bitmap{};
    GetObjectW(GetCurrentObject(dc, OBJ_BITMAP), sizeof(bitmap), &bitmap);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

TEST(MemorySurfaceTest, HasNothingBeforeItIsMade)
{
    const MemorySurface surface;
    EXPECT_EQ(surface.DC(), nullptr);
}

TEST(MemorySurfaceTest, HasTheSizeAndTheColoursThatItWasMadeFor)
{
    MemorySurface surface;
    surface.Create(TheScreen, 70, 30);
    ASSERT_NE(surface.DC(), nullptr);
    EXPECT_EQ(BitmapSize(surface.DC()).cx, 70);
    EXPECT_EQ(BitmapSize(surface.DC()).cy, 30);
    SetPixel(surface.DC(), 69, 29, 0x00FE00FF);
    EXPECT_EQ(GetPixel(surface.DC(), 69, 29), 0x00FE00FFU);
}

TEST(MemorySurfaceTest, GivesBackWhatItTookAndInTheRightOrder)
{
    DrawingCalls calls;
    {
        MemorySurface surface;
        surface.Create(TheScreen, 70, 30);
    }
    EXPECT_THAT(calls.Take(),
                ElementsAre("CreateCompatibleDC(*)", "CreateCompatibleBitmap(*, 70, 30)",
                            "SelectObject(memory dc, bitmap)", "CreateSolidBrush(0xFF00FF)",
                            "SelectObject(memory dc, brush 0xFF00FF)",
                            "PatBlt(memory dc, 0, 0, 70, 30, 0xF00021)", "SelectObject(memory dc, previous)",
                            "DeleteObject(brush 0xFF00FF)", "SelectObject(memory dc, previous)",
                            "DeleteDC(memory dc)", "DeleteObject(bitmap)"));
}

TEST(MemorySurfaceTest, IsTransparentBeforeAnythingIsDrawn)
{
    MemorySurface surface;
    surface.Create(TheScreen, 70, 30);
    EXPECT_EQ(test::TakePicture(surface.DC(), {0, 0, 70, 30}).Count(0x00FF00FF), 70U * 30U);
}

TEST(MemorySurfaceTest, ReleasedTwiceGivesNothingBackTwice)
{
    MemorySurface surface;
    surface.Create(TheScreen, 70, 30);
    surface.Release();
    EXPECT_EQ(surface.DC(), nullptr);
    DrawingCalls calls;
    surface.Release();
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST(MemorySurfaceTest, MadeAgainReleasesTheOldOneFirst)
{
    MemorySurface surface;
    surface.Create(TheScreen, 70, 30);
    DrawingCalls calls;
    calls.Name(surface.DC(), "old memory");
    calls.Name(GetCurrentObject(surface.DC(), OBJ_BITMAP), "old bitmap");
    surface.Create(TheScreen, 20, 90);
    EXPECT_EQ(BitmapSize(surface.DC()).cx, 20);
    const std::vector<std::string> made = calls.Take();
    ASSERT_GT(made.size(), 5U);
    EXPECT_EQ(made[1], "DeleteDC(old memory)");
    EXPECT_EQ(made[2], "DeleteObject(old bitmap)");
    EXPECT_THAT(made[4], testing::StartsWith("CreateCompatibleBitmap(*, 20, 90)"));
}

void ExpectNoSurface(DrawingCalls& calls, const testing::Matcher<const std::vector<std::string>&>& givenBack)
{
    MemorySurface surface;
    EXPECT_FALSE(surface.Create(TheScreen, 70, 30));
    EXPECT_EQ(surface.DC(), nullptr);
    EXPECT_THAT(calls.Take(), givenBack);
}

TEST(MemorySurfaceFailure, WithoutADeviceContextThereIsNoSurfaceAndNothingIsLeft)
{
    DrawingCalls calls;
    calls.Record<"CreateCompatibleDC">(CreateCompatibleDC).Fail(nullptr);
    ExpectNoSurface(calls, ElementsAre("CreateCompatibleDC(*)", "CreateCompatibleBitmap(*, 70, 30)",
                                       "DeleteObject(bitmap)"));
}

TEST(MemorySurfaceFailure, WithoutABitmapThereIsNoSurfaceAndNothingIsLeft)
{
    DrawingCalls calls;
    calls.Record<"CreateCompatibleBitmap">(CreateCompatibleBitmap).Fail(nullptr);
    ExpectNoSurface(calls, ElementsAre("CreateCompatibleDC(*)", "CreateCompatibleBitmap(*, 70, 30)",
                                       "DeleteDC(memory dc)"));
}

TEST(MemorySurfaceFailure, ALaterTryWorks)
{
    MemorySurface surface;
    {
        DrawingCalls calls;
        calls.Record<"CreateCompatibleBitmap">(CreateCompatibleBitmap).Fail(nullptr);
        EXPECT_FALSE(surface.Create(TheScreen, 70, 30));
    }
    EXPECT_TRUE(surface.Create(TheScreen, 70, 30));
    EXPECT_NE(surface.DC(), nullptr);
}

TEST(MemorySurfaceFailure, WithoutABrushForTheKeyItIsTransparentAllTheSame)
{
    MemorySurface surface;
    {
        DrawingCalls calls;
        calls.Record<"CreateSolidBrush">(CreateSolidBrush).Fail(nullptr);
        EXPECT_TRUE(surface.Create(TheScreen, 70, 30));
    }
    EXPECT_EQ(test::TakePicture(surface.DC(), {0, 0, 70, 30}).Count(0x00FF00FF), 70U * 30U);
}

// A surface that is not transparent would be shown as a black sheet.
const auto AllIsGivenBack = testing::IsSupersetOf({"DeleteDC(memory dc)", "DeleteObject(bitmap)"});

TEST(MemorySurfaceFailure, ThatCannotBeFilledWithTheKeyIsNoSurface)
{
    DrawingCalls calls;
    calls.Record<"PatBlt">(PatBlt).Fail(FALSE);
    ExpectNoSurface(calls, AllIsGivenBack);
}

TEST(MemorySurfaceFailure, ThatCannotBeSelectedIsNoSurface)
{
    DrawingCalls calls;
    calls.Record<"SelectObject">(SelectObject).Fail(nullptr);
    ExpectNoSurface(calls, AllIsGivenBack);
}

TEST(MemorySurfaceFailure, AnOldSurfaceIsGoneAfterAFailedTry)
{
    MemorySurface surface;
    surface.Create(TheScreen, 70, 30);
    DrawingCalls calls;
    calls.Record<"CreateCompatibleDC">(CreateCompatibleDC).Fail(nullptr);
    surface.Create(TheScreen, 70, 30);
    EXPECT_EQ(surface.DC(), nullptr);
}

class MemorySurfaceCopyTest : public testing::Test {
protected:
    // A surface with a red left half and a blue right one, shown on a green bitmap.
    std::vector<std::string> Copy(const RECT& client, double scale)
    {
        surface.Create(TheScreen, 80, 80);
        Fill(surface.DC(), {0, 0, 40, 80}, Red);
        Fill(surface.DC(), {40, 0, 80, 80}, Blue);
        DrawingCalls calls;
        calls.Name(target.DC(), "target");
        calls.Name(surface.DC(), "surface");
        surface.CopyTo(target.DC(), client, scale);
        return calls.Take();
    }

    MemorySurface surface;
    TestBitmap target{100, 100, Green};
};

TEST_F(MemorySurfaceCopyTest, AtScale1IsOneCopyOfTheClientArea)
{
    EXPECT_THAT(Copy({0, 0, 60, 40}, 1.0),
                ElementsAre("BitBlt(target, 0, 0, 60, 40, surface, 0, 0, 0xCC0020)"));
    const Picture picture = target.Look();
    EXPECT_EQ(picture.At(39, 20), Red);
    EXPECT_EQ(picture.At(40, 20), Blue);
    EXPECT_EQ(picture.At(59, 39), Blue);
    EXPECT_EQ(picture.At(60, 20), Green);
    EXPECT_EQ(picture.At(20, 40), Green);
}

TEST_F(MemorySurfaceCopyTest, AtScale2ReadsTwiceTheSize)
{
    EXPECT_THAT(Copy({0, 0, 40, 30}, 2.0),
                ElementsAre("SetStretchBltMode(target, 4)",
                            "StretchBlt(target, 0, 0, 40, 30, surface, 0, 0, 80, 60, 0xCC0020)"));
    const Picture picture = target.Look();
    EXPECT_EQ(picture.At(10, 15), Red);
    EXPECT_EQ(picture.At(30, 15), Blue);
    EXPECT_EQ(picture.At(45, 15), Green);
}

TEST_F(MemorySurfaceCopyTest, AtHalfScaleReadsHalfTheSizeRoundedDown)
{
    EXPECT_THAT(Copy({0, 0, 81, 61}, 0.5),
                ElementsAre("SetStretchBltMode(target, 4)",
                            "StretchBlt(target, 0, 0, 81, 61, surface, 0, 0, 40, 30, 0xCC0020)"));
    EXPECT_EQ(target.Look().At(40, 30), Red) << "only the left half is shown";
}

TEST_F(MemorySurfaceCopyTest, TheSourcesTopIsTheLeftEdgeWhenStretched)
{
    EXPECT_THAT(Copy({5, 9, 45, 39}, 2.0),
                ElementsAre("SetStretchBltMode(target, 4)",
                            "StretchBlt(target, 5, 9, 40, 30, surface, 5, 5, 80, 60, 0xCC0020)"));
}

TEST_F(MemorySurfaceCopyTest, TheSourcesTopIsTheTopEdgeWhenCopied)
{
    EXPECT_THAT(Copy({5, 9, 45, 39}, 1.0),
                ElementsAre("BitBlt(target, 5, 9, 40, 30, surface, 5, 9, 0xCC0020)"));
}

} // namespace

} // namespace zq::LM
