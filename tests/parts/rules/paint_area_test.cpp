// Which part of bitmap and window a frame has to touch, beside a picture that is drawn pixel by pixel.
#include "render/paint_area.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace zq::LM::test {

namespace {

constexpr std::int32_t Lowest = (std::numeric_limits<std::int32_t>::min)();

// Of an area that has just one.
PaintRectangle OnlyOne(const PaintArea& area)
{
    EXPECT_FALSE(area.IsEverything());
    EXPECT_EQ(area.Rectangles().size(), 1U);
    return area.Rectangles().empty() ? PaintRectangle{} : area.Rectangles().front();
}

PaintRectangle BoundsOfLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                            std::uint32_t width)
{
    PaintArea area;
    area.AddLine(x1, y1, x2, y2, width);
    return OnlyOne(area);
}

TEST(PaintArea, BeginsEmpty)
{
    EXPECT_TRUE(PaintArea().Rectangles().empty());
    EXPECT_FALSE(PaintArea().IsEverything());
}

TEST(PaintArea, LineReachesHalfItsWidthAndTwoPixelsMore)
{
    EXPECT_EQ(BoundsOfLine(10, 20, 30, 25, 6), (PaintRectangle{5, 15, 36, 31}));
    EXPECT_EQ(BoundsOfLine(30, 25, 10, 20, 7), (PaintRectangle{4, 14, 37, 32}));
}

TEST(PaintArea, DotOfNoWidthIsNotEmpty)
{
    EXPECT_EQ(BoundsOfLine(10, 20, 10, 20, 0), (PaintRectangle{8, 18, 13, 23}));
}

TEST(PaintArea, FarLinesAreEverything)
{
    for (const std::int32_t far : {16'384, -16'384, (std::numeric_limits<std::int32_t>::max)(), Lowest}) {
        for (int which = 0; which < 4; ++which) {
            std::array<std::int32_t, 4> line = {1, 2, 3, 4};
            line.at(static_cast<std::size_t>(which)) = far;
            PaintArea area;
            area.AddLine(line[0], line[1], line[2], line[3], 6);
            EXPECT_TRUE(area.IsEverything()) << far << " as number " << which;
        }
    }
}

TEST(PaintArea, WideLinesAreEverything)
{
    for (const std::uint32_t width : {4'097U, 0x80000000U, 0xFFFFFFFFU}) {
        PaintArea area;
        area.AddLine(1, 2, 3, 4, width);
        EXPECT_TRUE(area.IsEverything()) << width;
    }
}

TEST(PaintArea, LargestLinesHaveBounds)
{
    EXPECT_EQ(BoundsOfLine(-16'383, -16'383, 16'383, 16'383, 4'096),
              (PaintRectangle{-18'433, -18'433, 18'434, 18'434}));
}

TEST(PaintArea, RectanglesWithLittleBetweenThemAreJoined)
{
    PaintArea area;
    area.Add(PaintRectangle{10, 10, 20, 20});
    area.Add(PaintRectangle{15, 5, 30, 12});
    area.Add(PaintRectangle{});
    EXPECT_EQ(OnlyOne(area), (PaintRectangle{10, 5, 30, 20}));
}

TEST(PaintArea, RectanglesWithMuchBetweenThemStayApart)
{
    PaintArea area;
    area.Add(PaintRectangle{0, 0, 10, 10});
    area.Add(PaintRectangle{0, 418, 10, 428}); // 4,080 pixels between them
    EXPECT_EQ(area.Rectangles().size(), 1U);
    area.Add(PaintRectangle{1000, 1000, 1010, 1010});
    EXPECT_EQ(area.Rectangles().size(), 2U);
}

TEST(PaintArea, FifthRectangleJoinsTheTwoWithTheLeastBetweenThem)
{
    PaintArea area;
    for (const std::int32_t corner : {0, 1000, 2000, 3000, 3400}) {
        area.Add(PaintRectangle{corner, corner, corner + 10, corner + 10});
    }
    ASSERT_EQ(area.Rectangles().size(), PaintArea::Most);
    const auto joined = std::ranges::count(area.Rectangles(), PaintRectangle{3000, 3000, 3410, 3410});
    EXPECT_EQ(joined, 1);
}

// A diagonal across the screen is not its whole rectangle.
TEST(PaintArea, StrokeAcrossTheScreenIsCoveredInParts)
{
    PaintArea area;
    for (std::int32_t i = 0; i < 100; ++i) {
        area.AddLine(i * 10, i * 10, i * 10 + 10, i * 10 + 10, 6);
    }
    std::int64_t pixels = 0;
    for (const PaintRectangle& part : area.Rectangles()) {
        pixels += std::int64_t{part.right - part.left} * (part.bottom - part.top);
    }
    EXPECT_LT(pixels, 1000 * 1000 / 3);
}

TEST(PaintArea, SumWithEverythingIsEverything)
{
    PaintArea area;
    area.Add(PaintRectangle{10, 10, 20, 20});
    area.Add(PaintArea::Everything());
    EXPECT_TRUE(area.IsEverything());
}

void EmptyFrame(PaintRecord& record)
{
    record.BeginFrame();
    record.EndFrame();
}

TEST(PaintRecord, WindowIsTakenForSeeThroughUntilSomebodySaysOtherwise)
{
    PaintRecord record;
    EXPECT_FALSE(record.IsWindowOpaque());
    record.SetWindowOpaque(true);
    record.Forget();
    EXPECT_TRUE(record.IsWindowOpaque());
    record.SetWindowOpaque(false);
    EXPECT_FALSE(record.IsWindowOpaque());
}

TEST(PaintRecord, FirstFrameIsWhole)
{
    PaintRecord record;
    EXPECT_TRUE(record.BeginFrame().IsEverything());
    EXPECT_TRUE(record.ToCopy().IsEverything());
}

TEST(PaintRecord, FrameClearsWhatTheOneBeforeDrewAndCopiesBoth)
{
    PaintRecord record;
    record.BeginFrame();
    record.AddLine(100, 100, 110, 100, 0);
    record.EndFrame();
    EXPECT_EQ(OnlyOne(record.BeginFrame()), (PaintRectangle{98, 98, 113, 103}));
    record.AddLine(200, 100, 210, 100, 0);
    const PaintArea copied = record.ToCopy();
    EXPECT_FALSE(copied.IsEverything());
    EXPECT_EQ(OnlyOne(copied), (PaintRectangle{98, 98, 213, 103}));
}

TEST(PaintRecord, EmptyFramesTouchNothing)
{
    PaintRecord record;
    EmptyFrame(record);
    EXPECT_FALSE(record.BeginFrame().IsEverything());
    EXPECT_FALSE(record.ToCopy().IsEverything());
    EXPECT_TRUE(record.ToCopy().Rectangles().empty());
}

TEST(PaintRecord, WantedPartIsCopiedOnce)
{
    PaintRecord record;
    EmptyFrame(record);
    record.AddWanted({5, 6, 7, 8});
    record.BeginFrame();
    record.AddLine(100, 100, 110, 100, 0);
    EXPECT_EQ(record.ToCopy().Rectangles().size(), 2U);
    record.EndFrame();
    EXPECT_EQ(OnlyOne(record.ToCopy()), (PaintRectangle{98, 98, 113, 103}));
}

TEST(PaintRecord, FrameThatDidNotEndMakesTheNextOneWhole)
{
    PaintRecord record;
    EmptyFrame(record);
    record.BeginFrame(); // and an exception, or a call that failed
    EXPECT_TRUE(record.BeginFrame().IsEverything());
    EXPECT_TRUE(record.ToCopy().IsEverything());
    record.EndFrame();
    EXPECT_FALSE(record.BeginFrame().IsEverything());
}

TEST(PaintRecord, ForgottenBitmapIsClearedWhole)
{
    PaintRecord record;
    EmptyFrame(record);
    record.ForgetBitmap();
    EXPECT_TRUE(record.BeginFrame().IsEverything());
    EXPECT_FALSE(record.ToCopy().IsEverything()) << "what is cleared is the key that the window shows";
    record.EndFrame();
    EXPECT_FALSE(record.BeginFrame().IsEverything());
}

TEST(PaintRecord, BitmapForgottenInAFrameIsCopiedWholeAndTheNextOneToo)
{
    PaintRecord record;
    EmptyFrame(record);
    record.BeginFrame();
    record.ForgetBitmap();
    EXPECT_TRUE(record.ToCopy().IsEverything());
    record.EndFrame();
    EXPECT_TRUE(record.BeginFrame().IsEverything());
    EXPECT_TRUE(record.ToCopy().IsEverything());
    record.EndFrame();
    EXPECT_FALSE(record.BeginFrame().IsEverything());
    EXPECT_FALSE(record.ToCopy().IsEverything());
}

TEST(PaintRecord, ForgottenWindowIsCopiedWhole)
{
    PaintRecord record;
    EmptyFrame(record);
    record.ForgetWindow();
    EXPECT_FALSE(record.BeginFrame().IsEverything());
    EXPECT_TRUE(record.ToCopy().IsEverything());
    record.EndFrame();
    EXPECT_FALSE(record.ToCopy().IsEverything());
}

// Bitmap and window as grids of pixels: 0 is the key, -1 what nobody has drawn yet.
constexpr std::int32_t GridSize = 160; // more than what is joined at once
using Grid = std::array<int, static_cast<std::size_t>(GridSize) * GridSize>;

std::size_t Index(std::int32_t x, std::int32_t y)
{
    return static_cast<std::size_t>(y) * GridSize + static_cast<std::size_t>(x);
}

template <typename Change> void ForEachIn(const PaintRectangle& part, Change change)
{
    for (std::int32_t y = std::max(0, part.top); y < std::min(GridSize, part.bottom); ++y) {
        for (std::int32_t x = std::max(0, part.left); x < std::min(GridSize, part.right); ++x) {
            change(x, y);
        }
    }
}

template <typename Change> void ForEach(const PaintArea& area, Change change)
{
    const auto changeAt = [&change](std::int32_t x, std::int32_t y) { change(Index(x, y)); };
    if (area.IsEverything()) {
        ForEachIn({0, 0, GridSize, GridSize}, changeAt);
        return;
    }
    for (const PaintRectangle& part : area.Rectangles()) {
        ForEachIn(part, changeAt);
    }
}

double DistanceToLine(double x, double y, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2)
{
    const double length = std::hypot(x2 - x1, y2 - y1);
    double share = length > 0 ? ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / (length * length) : 0;
    share = std::fmin(std::fmax(share, 0), 1);
    return std::hypot(x - (x1 + share * (x2 - x1)), y - (y1 + share * (y2 - y1)));
}

class Picture {
public:
    Picture()
    {
        bitmap.fill(-1);
        window.fill(-1);
    }

    void Frame(std::mt19937& random)
    {
        ForEach(record.BeginFrame(), [this](std::size_t i) { bitmap[i] = 0; });
        Grid wanted{};
        for (unsigned lines = random() % 4; lines > 0; --lines) {
            Line_(random, wanted);
        }
        ASSERT_EQ(bitmap, wanted);
        if (random() % 8 == 0) {
            return; // the copy fails
        }
        ForEach(record.ToCopy(), [this](std::size_t i) { window[i] = bitmap[i]; });
        record.EndFrame();
        ASSERT_EQ(window, wanted);
    }

    void EraseWindow()
    {
        window.fill(-1);
        record.ForgetWindow();
    }

    void MakeBitmapAnew()
    {
        bitmap.fill(-1);
        record.ForgetBitmap();
    }

private:
    // Drawn a pixel and a half wider than asked for: nobody knows how a system rounds.
    void Line_(std::mt19937& random, Grid& wanted)
    {
        const auto coordinate = [&random] {
            return static_cast<std::int32_t>(random() % (GridSize + 20)) - 10;
        };
        const std::int32_t x1 = coordinate();
        const std::int32_t y1 = coordinate();
        const std::int32_t x2 = coordinate();
        const std::int32_t y2 = coordinate();
        const std::uint32_t width = static_cast<std::uint32_t>(random() % 9);
        const int colour = 1 + static_cast<int>(random() % 5);
        record.AddLine(x1, y1, x2, y2, width);
        constexpr std::int32_t Widest = 6; // half of it and a little more
        const PaintRectangle around = {std::min(x1, x2) - Widest, std::min(y1, y2) - Widest,
                                       std::max(x1, x2) + Widest, std::max(y1, y2) + Widest};
        ForEachIn(around, [&](std::int32_t x, std::int32_t y) {
            if (DistanceToLine(x, y, x1, y1, x2, y2) <= width / 2.0 + 1.5) {
                bitmap[Index(x, y)] = colour;
                wanted[Index(x, y)] = colour;
            }
        });
    }

    PaintRecord record;
    Grid bitmap;
    Grid window;
};

TEST(PaintRecord, RandomFramesLookAsIfEachWereWhole)
{
    for (unsigned seed = 0; seed < 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        Picture picture;
        for (int frame = 0; frame < 50; ++frame) {
            if (random() % 10 == 0) {
                picture.EraseWindow();
            }
            if (random() % 10 == 0) {
                picture.MakeBitmapAnew();
            }
            picture.Frame(random);
            if (testing::Test::HasFatalFailure()) {
                return;
            }
        }
    }
}

} // namespace

} // namespace zq::LM::test
