// The SVC reader: what it accepts, and the line and reason of every kind of damage.
#include "svc.h"

#include <gmock/gmock.h>

#include <sstream>

namespace lumora::replay {
namespace {

using testing::HasSubstr;

RecordingResult Read(const std::string& text, std::optional<TimeUnit> told = std::nullopt)
{
    std::istringstream input(text);
    return ReadSvc(input, told);
}

std::vector<RecordedSample> SamplesOf(const std::string& text, std::optional<TimeUnit> told = std::nullopt)
{
    const RecordingResult result = Read(text, told);
    if (const auto* error = std::get_if<RecordingError>(&result)) {
        ADD_FAILURE() << "line " << error->line << ": " << error->reason;
        return {};
    }
    return std::get<Recording>(result).samples;
}

void ExpectError(const std::string& text, std::size_t line, const std::string& reason)
{
    const RecordingResult result = Read(text);
    const auto* error = std::get_if<RecordingError>(&result);
    ASSERT_NE(error, nullptr) << "the text was accepted";
    EXPECT_EQ(error->line, line);
    EXPECT_THAT(error->reason, HasSubstr(reason));
    EXPECT_EQ(error->reason.find('\n'), std::string::npos);
}

TEST(Svc, ColumnsBecomeASample)
{
    const auto samples = SamplesOf("1\n4034 7509 354642400 1 1190 720 10852\n");
    ASSERT_EQ(samples.size(), 1U);
    EXPECT_EQ(samples[0].x, 4034);
    EXPECT_EQ(samples[0].y, 7509);
    EXPECT_EQ(samples[0].time, 354642400);
    EXPECT_EQ(samples[0].pressure, 10852);
    EXPECT_EQ(samples[0].azimuth, 1190);
    EXPECT_EQ(samples[0].altitude, 720);
    EXPECT_TRUE(samples[0].touches);
}

TEST(Svc, PenColumnZeroHovers)
{
    const auto samples = SamplesOf("1\n1 2 3 0 0 0 5\n");
    ASSERT_EQ(samples.size(), 1U);
    EXPECT_FALSE(samples[0].touches);
}

TEST(Svc, YPointsUpwards)
{
    const RecordingResult result = Read("1\n1 2 3 1 0 0 5\n");
    EXPECT_TRUE(std::get<Recording>(result).yUpwards);
}

TEST(Svc, NegativePositionsAreAccepted)
{
    const auto samples = SamplesOf("1\n-5 -2147483648 3 1 0 0 5\n");
    ASSERT_EQ(samples.size(), 1U);
    EXPECT_EQ(samples[0].x, -5);
    EXPECT_EQ(samples[0].y, -2147483648.0);
}

TEST(Svc, LargestTimeIsAccepted)
{
    const auto samples = SamplesOf("1\n1 2 9007199254740991 1 0 0 5\n");
    ASSERT_EQ(samples.size(), 1U);
    EXPECT_EQ(samples[0].time, 9007199254740991.0);
}

TEST(Svc, DecimalsAreRead)
{
    const auto samples = SamplesOf("1\n12.5 -.25 3.75 1 119.4 72.1 1.5e3\n");
    ASSERT_EQ(samples.size(), 1U);
    EXPECT_EQ(samples[0].x, 12.5);
    EXPECT_EQ(samples[0].y, -0.25);
    EXPECT_EQ(samples[0].time, 3.75);
    EXPECT_EQ(samples[0].azimuth, 119.4);
    EXPECT_EQ(samples[0].altitude, 72.1);
    EXPECT_EQ(samples[0].pressure, 1500);
}

TEST(Svc, PenColumnMayBeWrittenAsADecimal)
{
    const auto samples = SamplesOf("2\n1 2 3 1.0 0 0 5\n1 2 4 0.0 0 0 5\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_TRUE(samples[0].touches);
    EXPECT_FALSE(samples[1].touches);
}

TEST(Svc, SharesOfPressureBecomePartsOfTheFullOne)
{
    const auto samples = SamplesOf("2\n1 2 3 1 0 0 0.5\n1 2 4 1 0 0 1\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[0].pressure, 16383.5);
    EXPECT_EQ(samples[1].pressure, 32767);
}

TEST(Svc, WholePressuresUpToOneAreTakenAsTheyAre)
{
    const auto samples = SamplesOf("2\n1 2 3 1 0 0 0\n1 2 4 1 0 0 1\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].pressure, 1);
}

TEST(Svc, FractionsAmongGreaterPressuresAreTakenAsTheyAre)
{
    const auto samples = SamplesOf("2\n1 2 3 1 0 0 0.5\n1 2 4 1 0 0 900\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[0].pressure, 0.5);
}

TEST(Svc, TimesInSecondsAreNoticed)
{
    const auto samples = SamplesOf("3\n1 2 10.000 1 0 0 5\n1 2 10.0075 1 0 0 5\n1 2 10.015 1 0 0 5\n");
    ASSERT_EQ(samples.size(), 3U);
    EXPECT_EQ(samples[0].time, 10000);
    EXPECT_EQ(samples[1].time, 10007.5);
    EXPECT_EQ(samples[2].time, 10015);
}

TEST(Svc, ToldUnitHolds)
{
    const auto samples = SamplesOf("2\n1 2 3 1 0 0 5\n1 2 4 1 0 0 5\n", TimeUnit::Seconds);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].time, 4000);
}

TEST(Svc, CommentNamesTheUnit)
{
    const auto samples = SamplesOf("# time-unit: us\n2\n1 2 3000 1 0 0 5\n1 2 4000 1 0 0 5\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].time, 4);
}

TEST(Svc, ToldUnitStandsAboveTheComment)
{
    const auto samples =
        SamplesOf("# time-unit: us\n2\n1 2 3 1 0 0 5\n1 2 4 1 0 0 5\n", TimeUnit::Milliseconds);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].time, 4);
}

TEST(Svc, CommentLinesBeforeTheCountAreSkipped)
{
    EXPECT_EQ(SamplesOf("# made by hand\n#\n1\n1 2 3 1 0 0 5\n").size(), 1U);
}

TEST(Svc, WindowsLineEndsAreAccepted)
{
    EXPECT_EQ(SamplesOf("# a\r\n1\r\n1 2 3 1 0 0 5\r\n\r\n").size(), 1U);
}

TEST(Svc, Utf8MarkIsSkipped)
{
    EXPECT_EQ(SamplesOf("\xEF\xBB\xBF"
                        "1\n1 2 3 1 0 0 5\n")
                  .size(),
              1U);
}

TEST(Svc, TabsAndSurroundingBlanksSeparate) { EXPECT_EQ(SamplesOf(" 1 \n 1\t2  3 1 0 0 5 \n").size(), 1U); }

TEST(Svc, MissingLastLineEndIsAccepted) { EXPECT_EQ(SamplesOf("1\n1 2 3 1 0 0 5").size(), 1U); }

TEST(Svc, BlankLinesAtTheEndAreAccepted) { EXPECT_EQ(SamplesOf("1\n1 2 3 1 0 0 5\n\n  \n").size(), 1U); }

TEST(Svc, EqualTimesAreAccepted) { EXPECT_EQ(SamplesOf("2\n1 2 3 1 0 0 5\n1 2 3 1 0 0 5\n").size(), 2U); }

TEST(Svc, JumpOfSecondsBetweenSamplesIsKept)
{
    const auto samples = SamplesOf("2\n1 2 3 1 0 0 5\n1 2 9003 1 0 0 5\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].time, 9003);
}

TEST(SvcDamage, EmptyFile) { ExpectError("", 1, "empty"); }

TEST(SvcDamage, OnlyComments) { ExpectError("# a\n# b\n", 2, "ends before the number of samples"); }

TEST(SvcDamage, CountIsNotANumber) { ExpectError("# a\nmany\n", 2, "not a number: \"many\""); }

TEST(SvcDamage, CountIsAFraction) { ExpectError("1.5\n", 1, "not a number"); }

TEST(SvcDamage, CountIsNegative) { ExpectError("-3\n", 1, "must be 1 to 10000000"); }

TEST(SvcDamage, CountIsZero) { ExpectError("0\n", 1, "must be 1 to 10000000"); }

TEST(SvcDamage, CountIsHuge) { ExpectError("10000001\n", 1, "must be 1 to 10000000"); }

TEST(SvcDamage, CountIsBeyondAnyNumber)
{
    ExpectError("99999999999999999999999\n", 1, "must be 1 to 10000000");
}

TEST(SvcDamage, CountLineIsMissing) { ExpectError("1 2 3 1 0 0 5\n", 1, "must stand alone"); }

TEST(SvcDamage, FewerSamplesThanSaid) { ExpectError("3\n1 2 3 1 0 0 5\n", 2, "ends after 1 of 3 samples"); }

TEST(SvcDamage, BlankLinesInPlaceOfTheLastSamples)
{
    ExpectError("3\n1 2 3 1 0 0 5\n\n\n", 4, "ends after 1 of 3 samples");
}

TEST(Svc, MoreSamplesThanSaidAreAllRead)
{
    const auto samples = SamplesOf("1\n1 2 3 1 0 0 5\n1 2 4 1 0 0 5\n");
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[1].time, 4);
}

TEST(SvcDamage, ASampleBehindThoseAnnouncedIsBroken)
{
    ExpectError("1\n1 2 3 1 0 0 5\n1 2 4\n", 3, "this line has 3");
}

TEST(SvcDamage, TooFewColumns) { ExpectError("1\n1 2 3 1 0 0\n", 2, "this line has 6"); }

TEST(SvcDamage, TooManyColumns) { ExpectError("1\n1 2 3 1 0 0 5 6\n", 2, "this line has 8"); }

TEST(SvcDamage, BlankLineBetweenSamples)
{
    ExpectError("2\n1 2 3 1 0 0 5\n\n1 2 4 1 0 0 5\n", 3, "this line has 0");
}

TEST(SvcDamage, CommentAfterTheCount) { ExpectError("1\n# a\n1 2 3 1 0 0 5\n", 2, "columns"); }

TEST(SvcDamage, ColumnIsNotANumber)
{
    ExpectError("1\n1 b 3 1 0 0 5\n", 2, "column 2 (y) is not a number: \"b\"");
}

TEST(SvcDamage, WordsForNumbersAreNone)
{
    ExpectError("1\ninf 2 3 1 0 0 5\n", 2, "column 1 (x) is not a number: \"inf\"");
    ExpectError("1\n1 nan 3 1 0 0 5\n", 2, "column 2 (y) is not a number: \"nan\"");
}

TEST(SvcDamage, DecimalComma)
{
    ExpectError("1\n1,5 2 3 1 0 0 5\n", 2, "column 1 (x) is not a number: \"1,5\"");
}

TEST(SvcDamage, NumberIsCutOff) { ExpectError("1\n1e 2 3 1 0 0 5\n", 2, "column 1 (x) is not a number"); }

TEST(SvcDamage, ExponentIsBeyondAnyRange)
{
    ExpectError("1\n1e999 2 3 1 0 0 5\n", 2,
                "column 1 (x) must be -2147483648 to 2147483648; it is \"1e999\"");
}

TEST(SvcDamage, PenColumnIsAFraction)
{
    ExpectError("1\n1 2 3 0.5 0 0 5\n", 2, "column 4 (pen) must be 0 or 1; it is \"0.5\"");
}

TEST(SvcDamage, UnknownUnitInAComment)
{
    ExpectError("# time-unit: min\n1\n1 2 3 1 0 0 5\n", 1, "the unit of time must be s, ms or us");
}

TEST(SvcDamage, TimeIsTooLargeOnceItIsInMilliseconds)
{
    const RecordingResult result = Read("1\n1 2 9007199254740991 1 0 0 5\n", TimeUnit::Seconds);
    ASSERT_TRUE(std::holds_alternative<RecordingError>(result));
    EXPECT_EQ(std::get<RecordingError>(result).line, 2U);
    EXPECT_THAT(std::get<RecordingError>(result).reason, HasSubstr("more than 9007199254740991 ms"));
}

TEST(SvcDamage, SampleMoreThanFortyNineDaysAfterTheFirst)
{
    ExpectError("2\n1 2 3 1 0 0 5\n1 2 4294967299 1 0 0 5\n", 3, "more than 49 days after the first");
}

TEST(SvcDamage, PositionOutOfRange) { ExpectError("1\n2147483649 2 3 1 0 0 5\n", 2, "column 1 (x) must be"); }

TEST(SvcDamage, NumberBeyondAnyRange)
{
    ExpectError("1\n1 99999999999999999999 3 1 0 0 5\n", 2, "column 2 (y) must be");
}

TEST(SvcDamage, NegativeTime) { ExpectError("1\n1 2 -3 1 0 0 5\n", 2, "column 3 (time) must be 0 to"); }

TEST(SvcDamage, TimeOutOfRange)
{
    ExpectError("1\n1 2 9007199254740993 1 0 0 5\n", 2, "column 3 (time) must be");
}

TEST(SvcDamage, PenColumnIsNeitherZeroNorOne)
{
    ExpectError("1\n1 2 3 2 0 0 5\n", 2, "column 4 (pen) must be 0 to 1");
}

TEST(SvcDamage, NegativePressure)
{
    ExpectError("1\n1 2 3 1 0 0 -1\n", 2, "column 7 (pressure) must be 0 to");
}

TEST(SvcDamage, TimeRunsBackwards)
{
    ExpectError("2\n1 2 30 1 0 0 5\n1 2 29 1 0 0 5\n", 3, "time runs backwards: 29 after 30");
}

TEST(SvcDamage, ForeignTextIsShownShortAndPrintable)
{
    ExpectError(std::string("\x01\x02\xFF") + std::string(100, 'x') + "\n", 1,
                "\"???" + std::string(21, 'x') + "...\"");
}

} // namespace
} // namespace lumora::replay
