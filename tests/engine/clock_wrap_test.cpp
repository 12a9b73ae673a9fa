// The millisecond clock begins at 0 again after 49.7 days. Times are plain differences: what came before the
// wrap lies in the future from then on, and is young.
#include "support/engine_test.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

// Three samples around the wrap, seen long after the ink life.
TEST_F(EngineTest, InkFromBeforeTheClocksWrapStaysAndKeepsWhatIsBehindIt)
{
    Set([](Params& params) {
        params.line = 0;
        params.outline = 1;
    });
    SetClock(0xFFFFFFF0);
    Add({Sample({1, 1})});
    SetClock(5);
    Add({Sample({2, 2})});
    SetClock(6);
    Add({Sample({3, 3})});
    SetClock(1000);
    const LogLevel level(DETAILED);
    const RecordedLog log;
    EXPECT_EQ(Drawn(), (Calls{DrawLine({1, 1}, {2, 2}, 12, White), DrawLine({2, 2}, {3, 3}, 12, White),
                              DrawLine({1, 1}, {2, 2}, 10, Ink), EraseLine({1, 1}, {2, 2}, 6, Ink),
                              EraseLine({2, 2}, {3, 3}, 6, Ink)}))
        << "gaps and ages across the wrap are negative; the second main segment is old";
    EXPECT_EQ(drawing.LivePointsNum(), 3);
    EXPECT_EQ(drawing.PenReoprtRate(), 0U);
    EXPECT_EQ(
        log.Texts(),
        (std::vector<std::string>{
            "\tMovePenData_ is locked.\n", "\tMovePenData_ is unlocked.\n",
            "Warning (zq::LM::Drawing::CalcPenReportRate_) : time_sub = 22\n", // the low half of -4294967274
            "Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -4294966280\n",
            "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Outline_) : time_sub = -4294967275\n",
            "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Main_) : time_sub = -4294966280\n"}));
}

TEST_F(EngineTest, AgesAndSpansOfMoreThan31BitsArePositive)
{
    SetClock(1);
    Add({Sample({1, 1})});
    SetClock(0xFFFFFFFF);
    Add({Sample({2, 2})});
    Set([](Params& params) { params.inkDecayTime = 0x7FFFFFFF; });
    const LogLevel level(DETAILED);
    const RecordedLog log;
    Frame();
    EXPECT_EQ(log.Lines().size(), 2U) << "there is nothing to warn of";
    EXPECT_EQ(drawing.LivePointsNum(), 1);
}

} // namespace
} // namespace zq::LM::test
