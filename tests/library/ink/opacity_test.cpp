// How the overlay is blended with what lies below it. Needs a display that blends windows.
#include "support/library/ink_on_screen.h"

#include <cstddef>
#include <cstdlib>

namespace zq::LM::test {

namespace {

// Blending rounds.
constexpr int Tolerance = 2;

bool IsNear(COLORREF seen, COLORREF wanted)
{
    const auto isClose = [](int a, int b) { return std::abs(a - b) <= Tolerance; };
    return isClose(GetRValue(seen), GetRValue(wanted)) && isClose(GetGValue(seen), GetGValue(wanted)) &&
           isClose(GetBValue(seen), GetBValue(wanted));
}

constexpr COLORREF RedOverGreen = RGB(192, 32, 0); // 192 of 255 red, the rest of 0, 128, 0

class Opacity : public InkOnScreen {
protected:
    // The display blends on its own time, so it gets a bounded while.
    template <typename Condition> static bool Comes(Condition condition)
    {
        constexpr int MostLooks = 250;
        constexpr DWORD WaitMilliseconds = 10;
        for (int i = 0; i < MostLooks; ++i) {
            SettleScreen();
            if (condition()) {
                return true;
            }
            MsgWaitForMultipleObjects(0, nullptr, FALSE, WaitMilliseconds, QS_ALLINPUT);
        }
        return false;
    }

    COLORREF At(int x, int y) const { return Look({x, y, x + 1, y + 1}).At(x, y); }

    // What a position shows in the end.
    testing::AssertionResult Shows(int x, int y, COLORREF wanted) const
    {
        if (Comes([&] { return IsNear(At(x, y), wanted); })) {
            return testing::AssertionSuccess();
        }
        const COLORREF seen = At(x, y);
        return testing::AssertionFailure()
               << static_cast<int>(GetRValue(seen)) << ", " << static_cast<int>(GetGValue(seen)) << ", "
               << static_cast<int>(GetBValue(seen));
    }

    static std::size_t CountNear(const Picture& picture, const RECT& part, COLORREF wanted)
    {
        std::size_t count = 0;
        for (LONG y = part.top; y < part.bottom; ++y) {
            for (LONG x = part.left; x < part.right; ++x) {
                count += IsNear(picture.At(x, y), wanted) ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(Opacity, OfInkIsThreeQuarters)
{
    Stroke(100, 300, 200);
    EXPECT_TRUE(Shows(200, 200, RedOverGreen));
    EXPECT_TRUE(Shows(200, 203, RedOverGreen));
}

TEST_F(Opacity, OfEverythingElseIsNone)
{
    constexpr RECT Part = {0, 0, 400, 300};
    constexpr std::size_t LeastInk = 1900; // 200 pixels long and 10 wide
    Stroke(100, 300, 200);
    EXPECT_TRUE(Comes([&] {
        const Picture picture = Look(Part);
        const std::size_t ink = CountNear(picture, Part, RedOverGreen);
        return ink > LeastInk && picture.Count(Green) + ink == 400U * 300U;
    })) << Look(Part).Print(Green, {90, 180, 310, 220});
}

TEST_F(Opacity, IsGivenBackWhenTheInksLifeIsOver)
{
    Stroke(100, 300, 200);
    ASSERT_TRUE(Shows(200, 200, RedOverGreen));
    Tick();
    clock.Advance(params.inkDecayTime);
    Tick();
    Paint();
    // The tests' display does not look again at what a window stops covering until something is drawn there.
    InvalidateRect(backdrop.Window(), nullptr, TRUE);
    EXPECT_TRUE(Shows(200, 200, Green));
}

} // namespace

} // namespace zq::LM::test
