// What the pen host makes of a pen's reports.
#include "pen-host/pen_sample.h"

#include "svc.h"

#include <gmock/gmock.h>

#include <limits>
#include <sstream>

namespace pen_host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PenStep, OfAPenThatWritesNothingYet)
{
    EXPECT_EQ(NextStep(false, true, false), Step::Begin);
    EXPECT_EQ(NextStep(false, false, false), Step::Hover);
}

TEST(PenStep, OfAPenThatWrites)
{
    EXPECT_EQ(NextStep(true, true, false), Step::Continue);
    EXPECT_EQ(NextStep(true, false, false), Step::End);
}

TEST(PenStep, OfAPenThatTheSystemCancels)
{
    EXPECT_EQ(NextStep(true, true, true), Step::Cancel);
    EXPECT_EQ(NextStep(true, false, true), Step::Cancel);
    EXPECT_EQ(NextStep(false, true, true), Step::Nothing);
    EXPECT_EQ(NextStep(false, false, true), Step::Nothing);
}

TEST(PenPressure, IsScaledToTheFullOne)
{
    EXPECT_EQ(ScalePressure(1024, true), FullPressure);
    EXPECT_EQ(ScalePressure(512, true), 16383);
    EXPECT_EQ(ScalePressure(1, true), 31);
}

TEST(PenPressure, IsNeverThatOfAPenThatHovers) { EXPECT_EQ(ScalePressure(0, true), 1); }

TEST(PenPressure, IsNoMoreThanFull)
{
    EXPECT_EQ(ScalePressure(1025, true), FullPressure);
    EXPECT_EQ(ScalePressure(std::numeric_limits<std::uint32_t>::max(), true), FullPressure);
}

TEST(PenPressure, IsFullWhereThePenFeelsNone) { EXPECT_EQ(ScalePressure(0, false), FullPressure); }

// As the system's POINT and RECT.
struct Point {
    std::int32_t x;
    std::int32_t y;
};
struct Rectangle {
    std::int32_t left;
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};

constexpr Rectangle Surface = {0, 0, 20000, 10000};
constexpr Rectangle Display = {-1920, 100, 0, 1180};

PenSample PutPen(Point himetric, const Rectangle& surface, Point pixel = {7, 9})
{
    PenSample sample;
    PutOnScreen(sample, himetric, surface, Display, pixel);
    return sample;
}

TEST(PenPlace, IsThatOfTheDisplayUnderTheSurface)
{
    const PenSample corner = PutPen({0, 0}, Surface);
    EXPECT_DOUBLE_EQ(corner.x, -1920);
    EXPECT_DOUBLE_EQ(corner.y, 100);
    const PenSample middle = PutPen({10000, 5000}, Surface);
    EXPECT_DOUBLE_EQ(middle.x, -960);
    EXPECT_DOUBLE_EQ(middle.y, 640);
}

TEST(PenPlace, KeepsFractionsOfPixels)
{
    const PenSample sample = PutPen({10001, 5001}, Surface);
    EXPECT_DOUBLE_EQ(sample.x, -960 + 0.096);
    EXPECT_DOUBLE_EQ(sample.y, 640 + 0.108);
}

TEST(PenPlace, CountsFromTheSurfacesOwnCorner)
{
    const PenSample sample = PutPen({1000, 2000}, {1000, 2000, 21000, 12000});
    EXPECT_DOUBLE_EQ(sample.x, -1920);
    EXPECT_DOUBLE_EQ(sample.y, 100);
}

TEST(PenPlace, IsTheSystemsPixelWhereTheDeviceHasNoSize)
{
    const PenSample sample = PutPen({10000, 5000}, {0, 0, 0, 0});
    EXPECT_DOUBLE_EQ(sample.x, 7);
    EXPECT_DOUBLE_EQ(sample.y, 9);
}

TEST(PenHistory, IsAskedForWithinBounds)
{
    EXPECT_EQ(BoundedHistory(0), 1U);
    EXPECT_EQ(BoundedHistory(1), 1U);
    EXPECT_EQ(BoundedHistory(256), 256U);
    EXPECT_EQ(BoundedHistory(257), 256U);
    EXPECT_EQ(BoundedHistory(std::numeric_limits<std::uint32_t>::max()), 256U);
}

TEST(PenHistory, IsTurnedSoThatTheOldestComesFirst)
{
    EXPECT_THAT(OldestFirst(std::vector<int>{3, 2, 1}, 3), ElementsAre(1, 2, 3));
}

TEST(PenHistory, IsWhatFitsWhenThereIsMore)
{
    EXPECT_THAT(OldestFirst(std::vector<int>{9, 8, 7}, 100), ElementsAre(7, 8, 9));
}

TEST(PenHistory, IsWhatThereIsWhenTheBufferIsLarger)
{
    EXPECT_THAT(OldestFirst(std::vector<int>{2, 1, 0, 0}, 2), ElementsAre(1, 2));
    EXPECT_THAT(OldestFirst(std::vector<int>{0}, 0), IsEmpty());
}

std::string SvcOf(const std::vector<PenSample>& samples)
{
    std::ostringstream output;
    WriteSvc(output, samples);
    const std::string text = output.str();
    EXPECT_EQ(text.front(), '#');
    return text.substr(text.find('\n') + 1);
}

TEST(PenRecording, HasACountAndALineForEachSample)
{
    EXPECT_EQ(SvcOf({{10.25, 20.5, 0, 5000}, {-1, -2, 31, 5007}}), "2\n"
                                                                   "1025 -2050 0 0 0 900 0\n"
                                                                   "-100 200 7 1 0 900 31\n");
}

TEST(PenRecording, RoundsToTheNearestHundredth)
{
    EXPECT_EQ(SvcOf({{0.126, 0.124, 0, 0}}), "1\n13 -12 0 0 0 900 0\n");
}

TEST(PenRecording, HasTimeThatNeverRunsBackwards)
{
    EXPECT_EQ(
        SvcOf({{1, 1, 1, 1000}, {1, 1, 1, 1010}, {1, 1, 1, 1005}, {1, 1, 1, 1012}}),
        "4\n100 -100 0 1 0 900 1\n100 -100 10 1 0 900 1\n100 -100 10 1 0 900 1\n100 -100 12 1 0 900 1\n");
}

TEST(PenRecording, OutlivesTheWrapOfTheClock)
{
    EXPECT_EQ(SvcOf({{1, 1, 1, 0xFFFFFFFE}, {1, 1, 1, 3}}),
              "2\n100 -100 0 1 0 900 1\n100 -100 5 1 0 900 1\n");
}

TEST(PenRecording, OfNothingSaysSo) { EXPECT_EQ(SvcOf({}), "0\n"); }

TEST(PenRecording, IsReadByTheReplay)
{
    std::stringstream file;
    WriteSvc(file, {{-100.5, 200.25, 0, 70}, {30, 40, FullPressure, 75}, {30, 40, 0, 80}});
    const auto result = lumora::replay::ReadSvc(file);
    const auto* recording = std::get_if<lumora::replay::Recording>(&result);
    ASSERT_NE(recording, nullptr) << std::get<lumora::replay::RecordingError>(result).reason;
    ASSERT_EQ(recording->samples.size(), 3U);
    EXPECT_TRUE(recording->yUpwards);
    EXPECT_EQ(recording->samples[0].x, -10050);
    EXPECT_EQ(recording->samples[0].y, -20025);
    EXPECT_FALSE(recording->samples[0].touches);
    EXPECT_TRUE(recording->samples[1].touches);
    EXPECT_EQ(recording->samples[1].pressure, FullPressure);
    EXPECT_EQ(recording->samples[2].time, 10);
}

} // namespace
} // namespace pen_host
