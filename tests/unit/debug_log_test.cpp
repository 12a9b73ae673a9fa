// The debug log: which lines a level lets through, and on which of the two channels they leave.
#include "log/debug_log.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

#include <string>

namespace zq::LM {
namespace {

using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using Lines = std::vector<LogLine>;

TEST(DebugLogLevel, IsZeroAtFirst) { EXPECT_EQ(GetDebugLevel(), 0U); }

TEST(DebugLogLevel, NamedLevelsHaveTheseNumbers)
{
    EXPECT_EQ(NONE, 0U);
    EXPECT_EQ(BASIC, 1U);
    EXPECT_EQ(NORMAL, 2U);
    EXPECT_EQ(DETAILED, 3U);
    EXPECT_EQ(ALL, 255U);
}

TEST(DebugLogLevel, OfTheWindowsLinesIsNormal) { EXPECT_EQ(g_frameLogLevel, 2U); }

TEST(DebugLogLevel, KeepsAnyNumber)
{
    for (const std::uint32_t level : {7U, 1000U, 0x80000000U, 0xFFFFFFFFU}) {
        const LogLevel set(level);
        EXPECT_EQ(GetDebugLevel(), level);
    }
}

TEST(DebugLogBuffer, Holds4096Bytes) { EXPECT_EQ(sizeof(g_logBuffer), 4096U); }

struct LevelCase {
    std::uint32_t inForce;
    bool basic, normal, detailed, onlyAtAll;
};

class LinesAtLevel : public testing::TestWithParam<LevelCase> {
protected:
    static Lines Wide(std::uint32_t level)
    {
        const RecordedLog log;
        Log(level, L"wide\n");
        return log.Lines();
    }

    static Lines Narrow(std::uint32_t level)
    {
        const RecordedLog log;
        LogA(level, "narrow\n");
        return log.Lines();
    }

    static Lines WideIf(bool appears) { return appears ? Lines{{true, "wide\n"}} : Lines{}; }
    static Lines NarrowIf(bool appears) { return appears ? Lines{{false, "narrow\n"}} : Lines{}; }

    const LogLevel level{GetParam().inForce};
};

TEST_P(LinesAtLevel, LevelZeroLinesAlwaysAppear)
{
    EXPECT_EQ(Wide(0), WideIf(true));
    EXPECT_EQ(Narrow(0), NarrowIf(true));
}

TEST_P(LinesAtLevel, BasicLines)
{
    EXPECT_EQ(Wide(BASIC), WideIf(GetParam().basic));
    EXPECT_EQ(Narrow(BASIC), NarrowIf(GetParam().basic));
}

TEST_P(LinesAtLevel, NormalLines)
{
    EXPECT_EQ(Wide(NORMAL), WideIf(GetParam().normal));
    EXPECT_EQ(Narrow(NORMAL), NarrowIf(GetParam().normal));
}

TEST_P(LinesAtLevel, LogAtNormalGoesWideFromNormalOn)
{
    const RecordedLog log;
    LogAtNormal(L"wide\n");
    EXPECT_EQ(log.Lines(), WideIf(GetParam().normal));
}

TEST_P(LinesAtLevel, DetailedLines)
{
    EXPECT_EQ(Wide(DETAILED), WideIf(GetParam().detailed));
    EXPECT_EQ(Narrow(DETAILED), NarrowIf(GetParam().detailed));
}

TEST_P(LinesAtLevel, LinesOfTheGettersAppearAtAllOnly)
{
    EXPECT_EQ(Wide(254), WideIf(GetParam().onlyAtAll));
    EXPECT_EQ(Narrow(254), NarrowIf(GetParam().onlyAtAll));
}

INSTANTIATE_TEST_SUITE_P(
    Levels, LinesAtLevel,
    testing::Values(LevelCase{0, false, false, false, false}, LevelCase{1, true, false, false, false},
                    LevelCase{2, true, true, false, false}, LevelCase{3, true, true, true, false},
                    LevelCase{7, true, true, true, false}, LevelCase{253, true, true, true, false},
                    LevelCase{254, true, true, true, false}, LevelCase{255, true, true, true, true},
                    LevelCase{256, true, true, true, false}, LevelCase{1000, true, true, true, false},
                    LevelCase{0xFFFFFFFF, true, true, true, false}),
    [](const testing::TestParamInfo<LevelCase>& tested) { return std::to_string(tested.param.inForce); });

TEST(DebugLog, ComparesLevelsUnsigned)
{
    const RecordedLog log;
    {
        const LogLevel level(0x80000000);
        Log(3, L"wide\n");
        LogA(0x80000001, "narrow\n");
    }
    EXPECT_EQ(log.Lines(), (Lines{{true, "wide\n"}}));
}

TEST(DebugLog, AddsNothingToATextAndKeepsTheOrder)
{
    const LogLevel level(ALL);
    const RecordedLog log;
    Log(BASIC, L"no line end");
    LogA(BASIC, "");
    Log(BASIC, L"");
    LogA(BASIC, "\ttab %d %s\n");
    EXPECT_EQ(log.Lines(), (Lines{{true, "no line end"}, {false, ""}, {true, ""}, {false, "\ttab %d %s\n"}}));
}

} // namespace
} // namespace zq::LM
