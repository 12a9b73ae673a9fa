// Recordings of what was written.
#include "program/sample_record.h"

#include "svc.h"

#include <gmock/gmock.h>

#include <sstream>

namespace lumora_pen {

namespace {

std::vector<lumora::replay::RecordedSample> ReadBack(const SampleRecord& record)
{
    std::stringstream text;
    record.Write(text);
    auto result = lumora::replay::ReadSvc(text);
    const auto* const recording = std::get_if<lumora::replay::Recording>(&result);
    EXPECT_NE(recording, nullptr) << text.str();
    return recording != nullptr ? recording->samples : std::vector<lumora::replay::RecordedSample>();
}

TEST(SampleRecord, IsReadByTheReplayWithItsPlacesAndPressures)
{
    SampleRecord record;
    record.Add({{100.25, -7, 300, 5000}, {101, 8, 0, 5010}});
    const auto samples = ReadBack(record);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[0].x, 100.25);
    EXPECT_EQ(samples[0].y, 7) << "upwards";
    EXPECT_EQ(samples[0].pressure, 300);
    EXPECT_TRUE(samples[0].touches);
    EXPECT_FALSE(samples[1].touches);
    EXPECT_EQ(samples[1].time - samples[0].time, 10);
}

TEST(SampleRecord, TimeGoesOnOverTheWrapOfTheClock)
{
    SampleRecord record;
    record.Add({{1, 1, 1, 0xFFFFFFFA}, {1, 1, 1, 4}});
    const auto samples = ReadBack(record);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].time - samples[0].time, 10);
}

TEST(SampleRecord, TimeNeverRunsBackwards)
{
    SampleRecord record;
    record.Add({{1, 1, 1, 100}, {1, 1, 1, 90}, {1, 1, 1, 110}});
    const auto samples = ReadBack(record);
    ASSERT_EQ(samples.size(), 3U);
    EXPECT_EQ(samples[1].time, samples[0].time);
    EXPECT_EQ(samples[2].time - samples[0].time, 10);
}

TEST(SampleRecord, OfNothingIsAFileToo)
{
    std::stringstream text;
    SampleRecord().Write(text);
    EXPECT_EQ(text.str(), "0\n");
}

} // namespace

} // namespace lumora_pen
