// When the brush for the key cannot be made, the overlay still shows ink and nothing else.
#include "support/hook/hooks.h"
#include "support/library/back_end_test.h"

#include <string>
#include <tuple>

namespace zq::LM::test {

namespace {

constexpr COLORREF Key = 0x00FF00FF;
constexpr int EveryBrush = 0; // the first is 1

// The brush that is refused, counted from where a test begins to.
class KeyBrushTest : public BackEndTest, public testing::WithParamInterface<std::tuple<BackEnd, int>> {
protected:
    KeyBrushTest() : BackEndTest(std::get<BackEnd>(GetParam())) {}

    void RefuseFromNowOn()
    {
        calls.Answer<"CreateSolidBrush">(CreateSolidBrush, [this](COLORREF colour) {
            const int refused = std::get<int>(GetParam());
            ++wanted;
            const bool isRefused = refused == EveryBrush || refused == wanted;
            refusals += isRefused ? 1 : 0;
            return isRefused ? nullptr : CreateSolidBrush(colour);
        });
    }

    bool ShowsInkAndNothingElse() const
    {
        const Picture picture = Look();
        const std::size_t ink = picture.Count(Red);
        return ink > 0 && ink + picture.Count(Green) == static_cast<std::size_t>(All.right * All.bottom);
    }

    // By its own device context, before a paint can mend it.
    static bool IsTransparentAllOver(HWND window)
    {
        HDC dc = GetDC(window);
        const Picture picture = TakePicture(dc, All);
        ReleaseDC(window, dc);
        return picture.Count(Key) == static_cast<std::size_t>(All.right * All.bottom);
    }

    Hooks calls{library.Module()};
    int wanted = 0;
    int refusals = 0;
};

std::string BrushName(const testing::TestParamInfo<std::tuple<BackEnd, int>>& parameters)
{
    const int refused = std::get<int>(parameters.param);
    return std::string(std::get<BackEnd>(parameters.param).name) + "Without" +
           (refused == EveryBrush ? "Any" : "Brush" + std::to_string(refused));
}

// At its creation the window is filled first, then the new bitmap.
class CreationWithoutAKeyBrush : public KeyBrushTest {
protected:
    void BeforeCreation() override { RefuseFromNowOn(); }
};

TEST_P(CreationWithoutAKeyBrush, ShowsInkAndNothingElse)
{
    EXPECT_GT(refusals, 0);
    EXPECT_TRUE(ShowsNothing());
    Stroke(200, 300, 200);
    EXPECT_TRUE(ShowsInkAndNothingElse());
}

INSTANTIATE_TEST_SUITE_P(Brushes, CreationWithoutAKeyBrush,
                         testing::Combine(testing::Values(Direct2DBackEnd, GDIBackEnd),
                                          testing::Values(EveryBrush)),
                         BrushName);

// The overlay as it is just after its creation.
class NewWindowWithoutAKeyBrush : public CreationWithoutAKeyBrush {
protected:
    void SetUp() override { Start(); }
};

TEST_P(NewWindowWithoutAKeyBrush, IsTransparentBeforeAFrame)
{
    EXPECT_GT(refusals, 0);
    EXPECT_TRUE(IsTransparentAllOver(library.GetWindowHandle()));
}

INSTANTIATE_TEST_SUITE_P(Brushes, NewWindowWithoutAKeyBrush,
                         testing::Combine(testing::Values(Direct2DBackEnd, GDIBackEnd),
                                          testing::Values(EveryBrush, 1)),
                         BrushName);

// Nothing is drawn over the bitmap.
class UndrawnBitmapWithoutAKeyBrush : public KeyBrushTest {
protected:
    void BeforeCreation() override
    {
        graphics->Answer("D2DFactory.CreateDCRenderTarget", E_FAIL);
        RefuseFromNowOn();
    }
};

TEST_P(UndrawnBitmapWithoutAKeyBrush, ShowsNothing)
{
    ASSERT_TRUE(graphics->WereAnswersUsed());
    Stroke(200, 300, 200);
    EXPECT_GT(refusals, 0);
    EXPECT_TRUE(ShowsNothing());
}

INSTANTIATE_TEST_SUITE_P(Brushes, UndrawnBitmapWithoutAKeyBrush,
                         testing::Combine(testing::Values(Direct2DBackEnd), testing::Values(EveryBrush, 2)),
                         BrushName);

// Direct2D's frames need no brush.
class FrameWithoutAKeyBrush : public KeyBrushTest {};

TEST_P(FrameWithoutAKeyBrush, ShowsInkAndNothingElse)
{
    RefuseFromNowOn();
    Stroke(200, 300, 200);
    EXPECT_GT(refusals, 0);
    EXPECT_TRUE(ShowsInkAndNothingElse());
    clock.Advance(1000);
    Refresh();
    EXPECT_TRUE(ShowsNothing());
}

INSTANTIATE_TEST_SUITE_P(Brushes, FrameWithoutAKeyBrush,
                         testing::Combine(testing::Values(GDIBackEnd), testing::Values(EveryBrush, 1)),
                         BrushName);

// The old window is filled first, then the new one; ink of the old one would show through.
class RebuildWithoutAKeyBrush : public KeyBrushTest {
protected:
    void Change()
    {
        old = library.GetWindowHandle();
        Choose(backEnd.command == ChooseGDI ? ChooseDirect2D : ChooseGDI);
        Input({Sample(1, 1)});
        ASSERT_NE(library.GetWindowHandle(), old);
    }

    HWND old = nullptr;
};

TEST_P(RebuildWithoutAKeyBrush, ShowsInkAndNothingOfTheOldWindow)
{
    Stroke(200, 300, 200);
    RefuseFromNowOn();
    Change();
    EXPECT_GT(refusals, 0);
    EXPECT_TRUE(IsTransparentAllOver(old));
    EXPECT_TRUE(IsTransparentAllOver(library.GetWindowHandle()));
    Paint();
    EXPECT_TRUE(ShowsNothing());
    Stroke(300, 400, 250);
    EXPECT_TRUE(ShowsInkAndNothingElse());
}

INSTANTIATE_TEST_SUITE_P(Brushes, RebuildWithoutAKeyBrush,
                         testing::Combine(testing::Values(Direct2DBackEnd, GDIBackEnd),
                                          testing::Values(EveryBrush, 1, 2)),
                         BrushName);

class LeftWindowWithoutAKeyBrush : public RebuildWithoutAKeyBrush {};

TEST_P(LeftWindowWithoutAKeyBrush, ShowsNothingAfterAPaint)
{
    Change();
    Paint();
    RefuseFromNowOn();
    InvalidateRect(old, nullptr, FALSE);
    UpdateWindow(old);
    SettleScreen();
    EXPECT_GT(refusals, 0);
    EXPECT_TRUE(ShowsNothing());
}

INSTANTIATE_TEST_SUITE_P(Brushes, LeftWindowWithoutAKeyBrush,
                         testing::Combine(testing::Values(Direct2DBackEnd, GDIBackEnd),
                                          testing::Values(EveryBrush)),
                         BrushName);

} // namespace

} // namespace zq::LM::test
