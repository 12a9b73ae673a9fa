// The colour picker's pictures with their markers, in controls on the screen.
#include "settings/picker_drawing.h"

#include "settings/colour_geometry.h"
#include "support/hook/hooks.h"
#include "support/library/object_counts.h"
#include "support/screen/screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace zq::LM::test {
namespace {

using ::testing::ElementsAre;

constexpr COLORREF White = 0x00FFFFFF;
constexpr COLORREF Black = 0x00000000;
constexpr COLORREF WedgeLine = 0x00111111;

class PickerDrawingTest : public ::testing::Test {
protected:
    static constexpr POINT Corner = {300, 120};

    ~PickerDrawingTest() override
    {
        bar.Release();
        wheel.Release();
        if (window != nullptr) {
            DestroyWindow(window);
        }
        PumpMessages();
    }

    // A control of this client size, shown and painted.
    HWND MakeControl(int width, int height)
    {
        window = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, Corner.x, Corner.y,
                                 400, 400, nullptr, nullptr, nullptr, nullptr);
        HWND control = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_GRAYRECT, 0, 0, width,
                                       height, window, nullptr, nullptr, nullptr);
        SettleScreen();
        return control;
    }

    // What is seen of the control, at its own coordinates.
    static Picture Seen(int width, int height)
    {
        const RECT place = {Corner.x, Corner.y, Corner.x + width, Corner.y + height};
        return TakePicture(place);
    }

    static COLORREF At(const Picture& picture, int x, int y)
    {
        return picture.At(Corner.x + x, Corner.y + y);
    }

    static COLORREF At(const OffScreenImage& image, int x, int y) { return GetPixel(image.DC(), x, y); }

    HWND window = nullptr;
    OffScreenImage bar;
    OffScreenImage wheel;
    Hooks calls{GetModuleHandleW(nullptr)};
};

TEST_F(PickerDrawingTest, TheImagesHaveTheirControlsSizeAndTheTopmostLineOnTop)
{
    HWND control = MakeControl(140, 121);
    ASSERT_TRUE(BuildWheel(wheel, control));
    EXPECT_EQ(wheel.Control(), control);
    EXPECT_EQ(wheel.Pixels().width, 140);
    EXPECT_EQ(wheel.Pixels().height, 121);
    EXPECT_EQ(wheel.Pixels().bytes.size(), 420U * 121);
    EXPECT_EQ(At(wheel, 70 + 25, 60), RGB(255, 127, 127)); // hue 0, half of the radius of 50
    EXPECT_EQ(At(wheel, 70, 60 + 25), RGB(191, 255, 127)); // below the centre: hue 90
    EXPECT_EQ(At(wheel, 70, 60 - 25), RGB(191, 127, 255));
}

TEST_F(PickerDrawingTest, TheBarIsSeenWithItsWedgeOnTheValue)
{
    HWND control = MakeControl(132, 20);
    ASSERT_TRUE(BuildValueBar(bar, control));
    ShowValueBar(bar, 255.0 * 40 / 100);
    SettleScreen();
    const Picture seen = Seen(132, 20);
    const int x = 16 + 40;
    EXPECT_EQ(At(seen, x, 4), White);          // inside the wedge
    EXPECT_EQ(At(seen, x - 4, 3), White);      // it is wide at the top
    EXPECT_EQ(At(seen, x, 9), WedgeLine);      // its point reaches the middle line
    EXPECT_EQ(At(seen, x - 10, 0), WedgeLine); // and its corners the top edge
    EXPECT_EQ(At(seen, x + 9, 0), WedgeLine);
    for (int column = 0; column < 132; ++column) {
        for (int row = 0; row < 20; ++row) {
            const bool mayBeMarker = row <= 12 && column >= x - 13 && column <= x + 13;
            if (!mayBeMarker) {
                ASSERT_EQ(At(seen, column, row), At(bar, column, row)) << column << ", " << row;
            }
        }
    }
}

TEST_F(PickerDrawingTest, TheWheelIsSeenWithADiscOfItsColourOnTheMarker)
{
    HWND control = MakeControl(140, 140);
    ASSERT_TRUE(BuildWheel(wheel, control));
    const Hsv colour = {120, 255.0 / 2, 64}; // the disc is shown at full value
    ShowWheel(wheel, colour);
    SettleScreen();
    const Picture seen = Seen(140, 140);
    const PixelPoint centre = WheelMarker(colour, {{70, 70}, 60});
    EXPECT_EQ(centre, (PixelPoint{55, 95}));
    const COLORREF disc = RGB(127, 255, 127);
    EXPECT_EQ(At(seen, centre.x, centre.y), disc);
    EXPECT_EQ(At(seen, centre.x - 6, centre.y), disc);
    EXPECT_EQ(At(seen, centre.x - 10, centre.y), Black); // the ellipse's leftmost column
    EXPECT_EQ(At(seen, centre.x - 9, centre.y), Black);  // a line of two pixels, inside
    EXPECT_EQ(At(seen, centre.x + 9, centre.y), Black);
    EXPECT_EQ(At(seen, centre.x, centre.y - 10), Black);
    EXPECT_EQ(At(seen, centre.x, centre.y + 9), Black);
    for (int x = 0; x < 140; ++x) {
        for (int y = 0; y < 140; ++y) {
            const bool mayBeMarker = std::max(std::abs(x - centre.x), std::abs(y - centre.y)) <= 11;
            if (!mayBeMarker) {
                ASSERT_EQ(At(seen, x, y), At(wheel, x, y)) << x << ", " << y;
            }
        }
    }
}

TEST_F(PickerDrawingTest, MarkersAreDrawnOnACopy)
{
    HWND control = MakeControl(140, 140);
    ASSERT_TRUE(BuildWheel(wheel, control));
    const Picture before = TakePicture(wheel.DC(), {0, 0, 140, 140});
    ShowWheel(wheel, {30, 200, 255});
    EXPECT_EQ(TakePicture(wheel.DC(), {0, 0, 140, 140}).Differences(before), 0U);
    ASSERT_TRUE(BuildValueBar(bar, control));
    const Picture plain = TakePicture(bar.DC(), {0, 0, 140, 140});
    ShowValueBar(bar, 128);
    EXPECT_EQ(TakePicture(bar.DC(), {0, 0, 140, 140}).Differences(plain), 0U);
}

TEST_F(PickerDrawingTest, ShowingIsOneBlockCopyAndTwoUpdates)
{
    HWND control = MakeControl(140, 140);
    calls.Name(control, "control");
    ASSERT_TRUE(BuildWheel(wheel, control));
    calls.Record<"CreatePen">(CreatePen);
    calls.Record<"CreateSolidBrush">(CreateSolidBrush);
    calls.Record<"Ellipse">(Ellipse);
    calls.Record<"Polygon">(Polygon);
    calls.Record<"BitBlt">(BitBlt);
    calls.Record<"UpdateWindow">(UpdateWindow);
    calls.Take();
    ShowWheel(wheel, {0, 0, 255});
    EXPECT_EQ(calls.Count("CreatePen"), 1U);
    EXPECT_THAT(calls.Of("CreatePen"), ElementsAre("CreatePen(6, 2, 0)")); // PS_INSIDEFRAME
    EXPECT_THAT(calls.Of("CreateSolidBrush"), ElementsAre("CreateSolidBrush(0xFFFFFF)"));
    EXPECT_THAT(calls.Of("Ellipse"), ElementsAre("Ellipse(*, 60, 60, 80, 80)"));
    EXPECT_EQ(calls.Count("BitBlt"), 1U);
    EXPECT_THAT(calls.Of("UpdateWindow"), ElementsAre("UpdateWindow(control)", "UpdateWindow(control)"));
    calls.Take();
    ASSERT_TRUE(BuildValueBar(bar, control));
    ShowValueBar(bar, 0);
    EXPECT_THAT(calls.Of("CreatePen"), ElementsAre("CreatePen(6, 2, 0x111111)"));
    EXPECT_EQ(calls.Count("Polygon"), 1U);
    EXPECT_EQ(calls.Count("BitBlt"), 1U);
    EXPECT_EQ(calls.Count("UpdateWindow"), 2U);
}

TEST_F(PickerDrawingTest, AMissingControlAndAnEmptyOneHaveNoImage)
{
    EXPECT_FALSE(BuildWheel(wheel, nullptr));
    EXPECT_FALSE(BuildValueBar(bar, nullptr));
    HWND control = MakeControl(0, 20);
    EXPECT_FALSE(BuildWheel(wheel, control));
    EXPECT_FALSE(BuildValueBar(bar, control));
    EXPECT_EQ(wheel.DC(), nullptr);
    calls.Record<"BitBlt">(BitBlt);
    ShowWheel(wheel, {});
    ShowValueBar(bar, 0);
    EXPECT_EQ(calls.Count("BitBlt"), 0U);
}

TEST_F(PickerDrawingTest, AnImageThatCannotBeMadeIsEmptyAndReplacesTheEarlierOne)
{
    HWND control = MakeControl(140, 140);
    ASSERT_TRUE(BuildWheel(wheel, control));
    calls.Answer<"CreateDIBSection">(
        CreateDIBSection,
        [](HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD) -> HBITMAP { return nullptr; });
    EXPECT_FALSE(BuildWheel(wheel, control));
    EXPECT_EQ(wheel.DC(), nullptr);
    EXPECT_EQ(wheel.Pixels().bytes.size(), 0U);
}

TEST_F(PickerDrawingTest, WithoutAContextThereIsNoImage)
{
    HWND control = MakeControl(140, 140);
    calls.Answer<"CreateCompatibleDC">(CreateCompatibleDC, [](HDC) -> HDC { return nullptr; });
    EXPECT_FALSE(BuildValueBar(bar, control));
    EXPECT_EQ(bar.DC(), nullptr);
}

TEST_F(PickerDrawingTest, WithoutAWorkingCopyNothingIsShown)
{
    HWND control = MakeControl(140, 140);
    ASSERT_TRUE(BuildWheel(wheel, control));
    calls.Record<"BitBlt">(BitBlt);
    calls.Answer<"CreateCompatibleDC">(CreateCompatibleDC, [](HDC) -> HDC { return nullptr; });
    ShowWheel(wheel, {});
    EXPECT_EQ(calls.Count("BitBlt"), 0U);
    EXPECT_NE(wheel.DC(), nullptr);
}

TEST_F(PickerDrawingTest, EverythingIsGivenBack)
{
    HWND control = MakeControl(140, 40);
    const auto useOnce = [&] {
        BuildWheel(wheel, control);
        BuildWheel(wheel, control); // an earlier image is released first
        BuildValueBar(bar, control);
        ShowWheel(wheel, {1, 2, 3});
        ShowValueBar(bar, 4);
        wheel.Release();
        bar.Release();
    };
    useOnce(); // the system makes things of its own the first time
    const std::size_t before = GdiObjects();
    for (int i = 0; i < 20; ++i) {
        useOnce();
    }
    EXPECT_EQ(GdiObjects(), before);
}

TEST_F(PickerDrawingTest, TinyControlsAreHarmless)
{
    for (int size = 1; size <= 34; size += 3) {
        HWND control = MakeControl(size, size);
        EXPECT_TRUE(BuildWheel(wheel, control));
        EXPECT_TRUE(BuildValueBar(bar, control));
        ShowWheel(wheel, {200, 255, 255});
        ShowValueBar(bar, 255);
        DestroyWindow(window);
        window = nullptr;
    }
}

} // namespace
} // namespace zq::LM::test
