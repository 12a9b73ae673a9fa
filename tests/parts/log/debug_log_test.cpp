// The debug log: which lines a level lets through, and on which of the two channels they leave.
#include "log/debug_log.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

namespace zq::LM {
namespace {

using test::LogLevel;
using Lines = std::vector<test::LogLine>;

TEST(DebugLog, HasTheseNumbers)
{
    EXPECT_EQ(GetDebugLevel(), 0U) << "at first";
    EXPECT_EQ(NONE, 0U);
    EXPECT_EQ(BASIC, 1U);
    EXPECT_EQ(NORMAL, 2U);
    EXPECT_EQ(DETAILED, 3U);
    EXPECT_EQ(OnlyAtAll, 254U);
    EXPECT_EQ(ALL, 255U);
    EXPECT_EQ(g_frameLogLevel, 2U);
    EXPECT_EQ(sizeof(g_logBuffer), 4096U);
}

struct LevelCase {
    std::uint32_t inForce;
    std::vector<std::uint32_t> appear; // of lines of the levels 0, 1, 2, 3, 254 and 0x80000001
};

TEST(DebugLog, LinesAppearAtTheseLevels)
{
    for (const LevelCase& tested :
         {LevelCase{0, {0}}, LevelCase{1, {0, 1}}, LevelCase{2, {0, 1, 2}}, LevelCase{3, {0, 1, 2, 3}},
          LevelCase{7, {0, 1, 2, 3}}, LevelCase{253, {0, 1, 2, 3}}, LevelCase{254, {0, 1, 2, 3}},
          LevelCase{255, {0, 1, 2, 3, 254}}, LevelCase{256, {0, 1, 2, 3}}, LevelCase{1000, {0, 1, 2, 3}},
          LevelCase{0x80000000, {0, 1, 2, 3}}, LevelCase{0xFFFFFFFF, {0, 1, 2, 3, 0x80000001}}}) {
        const LogLevel set(tested.inForce);
        EXPECT_EQ(GetDebugLevel(), tested.inForce);
        const test::RecordedLog log;
        for (const std::uint32_t level : {0U, 1U, 2U, 3U, 254U, 0x80000001U}) {
            Log(level, (L"wide " + std::to_wstring(level)).c_str());
            LogA(level, ("narrow " + std::to_string(level)).c_str());
        }
        LogAtNormal(L"wide at normal");
        Lines expected;
        for (const std::uint32_t level : tested.appear) {
            expected.push_back({true, "wide " + std::to_string(level)});
            expected.push_back({false, "narrow " + std::to_string(level)});
        }
        if (tested.inForce >= 2) {
            expected.push_back({true, "wide at normal"});
        }
        EXPECT_EQ(log.Lines(), expected) << tested.inForce;
    }
}

TEST(DebugLog, AddsNothingToATextAndKeepsTheOrder)
{
    const LogLevel level(ALL);
    const test::RecordedLog log;
    Log(BASIC, L"no line end");
    LogA(BASIC, "");
    Log(BASIC, L"");
    LogA(BASIC, "\ttab %d %s\n");
    EXPECT_EQ(log.Lines(), (Lines{{true, "no line end"}, {false, ""}, {true, ""}, {false, "\ttab %d %s\n"}}));
}

} // namespace
} // namespace zq::LM
