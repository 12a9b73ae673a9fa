// What the ink engine writes to the log: letter for letter, in order, and on the narrow channel.
#include "support/engine_test.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

#include <string>

namespace zq::LM::test {
namespace {

using Texts = std::vector<std::string>;

const std::string AddLocked = "\tAddPenDataAryCore_ is locked.\n";
const std::string AddUnlocked = "\tAddPenDataAryCore_ is unlocked.\n";
const std::string MoveLocked = "\tMovePenData_ is locked.\n";
const std::string MoveUnlocked = "\tMovePenData_ is unlocked.\n";

class EngineLog : public EngineTest {
protected:
    // The lines that an action writes at a level.
    template <class Action> Texts LinesAt(std::uint32_t level, Action action)
    {
        const LogLevel set(level);
        const RecordedLog log;
        action();
        for (const LogLine& line : log.Lines()) {
            EXPECT_FALSE(line.wide) << line.text;
        }
        return log.Texts();
    }

    Texts FrameLinesAt(std::uint32_t level)
    {
        return LinesAt(level, [this] { Frame(); });
    }
};

TEST_F(EngineLog, AddingWritesItsTwoLockLines)
{
    EXPECT_EQ(LinesAt(DETAILED,
                      [this] {
                          Add({Sample({1, 1}), Sample({2, 1})});
                      }),
              (Texts{AddLocked, AddUnlocked}));
}

TEST_F(EngineLog, AddingAResetMarkerWritesThemToo)
{
    EXPECT_EQ(LinesAt(DETAILED, [this] { Add({Sample({0, 1})}); }), (Texts{AddLocked, AddUnlocked}));
}

TEST_F(EngineLog, AddingThroughAClosedGateWritesNothing)
{
    Set([](Params& params) { params.line = params.cursor = 0; });
    EXPECT_EQ(LinesAt(ALL, [this] { Add({Sample({1, 1})}); }), Texts{});
}

TEST_F(EngineLog, AddingNothingWritesNothing)
{
    EXPECT_EQ(LinesAt(ALL,
                      [this] {
                          const PenData sample = Sample({1, 1});
                          drawing.AddPenDataAry(nullptr, 1);
                          drawing.AddPenDataAry(&sample, 0);
                      }),
              Texts{});
}

TEST_F(EngineLog, FrameWritesTheMovesTwoLockLines)
{
    EXPECT_EQ(FrameLinesAt(DETAILED), (Texts{MoveLocked, MoveUnlocked}));
    Add({Sample({1, 1}), Sample({2, 1})});
    EXPECT_EQ(FrameLinesAt(DETAILED), (Texts{MoveLocked, MoveUnlocked}));
}

TEST_F(EngineLog, FrameWritesTheSameAtAll)
{
    Add({Sample({1, 1}), Sample({2, 1}, Hovering)});
    EXPECT_EQ(FrameLinesAt(ALL), (Texts{MoveLocked, MoveUnlocked}));
}

TEST_F(EngineLog, AgeingAndClearingWriteNoLockLines)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Frame();
    EXPECT_EQ(LinesAt(ALL,
                      [this] {
                          drawing.DeleteOldPenData();
                          MoveClock(200);
                          drawing.DeleteOldPenData();
                          drawing.DeleteOldPenData();
                          drawing.ClearLivePenData();
                      }),
              Texts{});
}

TEST_F(EngineLog, SettersAndRecordCopiesWriteNothing)
{
    EXPECT_EQ(LinesAt(ALL,
                      [this] {
                          Set([](Params& params) { params.line = 0; });
                          drawing.SetParams(nullptr);
                          drawing.EnabledOptions(0xFFFFFFFF);
                          drawing.SetScale(2.0);
                          drawing.SetVectorOutline(true);
                          calls.BindTo(drawing);
                      }),
              Texts{});
}

TEST_F(EngineLog, LivePointsNumWritesItsLockLinesAtAll)
{
    EXPECT_EQ(LinesAt(255, [this] { drawing.LivePointsNum(); }),
              (Texts{"\tLivePointsNum is locked.\n", "\tLivePointsNum is unlocked.\n"}));
}

TEST_F(EngineLog, PenReoprtRateWritesItsLockLinesAtAll)
{
    EXPECT_EQ(LinesAt(255, [this] { drawing.PenReoprtRate(); }),
              (Texts{"\tPenReoprtRate is locked.\n", "\tPenReoprtRate is unlocked.\n"}));
}

TEST_F(EngineLog, GettersWriteNothingAtAnyOtherLevel)
{
    for (const std::uint32_t level : {0U, 1U, 2U, 3U, 7U, 253U, 254U, 256U, 1000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(LinesAt(level,
                          [this] {
                              drawing.LivePointsNum();
                              drawing.PenReoprtRate();
                          }),
                  Texts{})
            << level;
    }
}

TEST_F(EngineLog, NothingIsWrittenBelowDetailed)
{
    for (const std::uint32_t level : {0U, 1U, 2U}) {
        AddAt(50, {1, 1});
        EXPECT_EQ(LinesAt(level,
                          [this] {
                              AddAt(20, {2, 1});
                              MoveClock(0);
                              Frame();
                              drawing.DeleteOldPenData();
                          }),
                  Texts{})
            << level;
    }
}

TEST_F(EngineLog, LinesAppearAtEveryNumberFromDetailedOn)
{
    for (const std::uint32_t level : {3U, 7U, 253U, 254U, 255U, 256U, 1000U}) {
        EXPECT_EQ(FrameLinesAt(level), (Texts{MoveLocked, MoveUnlocked})) << level;
    }
}

TEST_F(EngineLog, FrameWarnsInTheOrderOfItsSteps)
{
    Set([](Params& params) { params.outline = 1; });
    AddAt(50, {1, 1});
    AddAt(20, {2, 1});
    MoveClock(0);
    EXPECT_EQ(
        FrameLinesAt(DETAILED),
        (Texts{MoveLocked, MoveUnlocked, "Warning (zq::LM::Drawing::CalcPenReportRate_) : time_sub = -30\n",
               "Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -50\n",
               "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Outline_) : time_sub = -30\n",
               "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Main_) : time_sub = -50\n"}));
}

TEST_F(EngineLog, HollowStrokeWarnsAboutAGapOnceInItsOutline)
{
    Set([](Params& params) {
        params.line = 0;
        params.outline = 1;
    });
    AddAt(50, {1, 1});
    AddAt(20, {2, 1});
    const Texts lines = FrameLinesAt(DETAILED);
    EXPECT_EQ(lines, (Texts{MoveLocked, MoveUnlocked,
                            "Warning (zq::LM::Drawing::CalcPenReportRate_) : time_sub = -30\n",
                            "Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -30\n",
                            "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Outline_) : time_sub = -30\n",
                            "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Main_) : time_sub = -30\n"}));
}

TEST_F(EngineLog, MainPassWarnsForEverySegmentWithANegativeAge)
{
    AddAt(10, {1, 1});
    AddAt(20, {2, 1});
    AddAt(30, {3, 1});
    MoveClock(0);
    EXPECT_EQ(FrameLinesAt(DETAILED),
              (Texts{MoveLocked, MoveUnlocked,
                     "Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -10\n",
                     "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Main_) : time_sub = -10\n",
                     "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Main_) : time_sub = -20\n"}));
}

TEST_F(EngineLog, PassesWarnEvenWhereAHoveringPenDrawsNothing)
{
    Set([](Params& params) { params.outline = 1; });
    AddAt(50, {1, 1}, Hovering);
    AddAt(20, {2, 1}, Hovering);
    EXPECT_EQ(
        FrameLinesAt(DETAILED),
        (Texts{MoveLocked, MoveUnlocked, "Warning (zq::LM::Drawing::CalcPenReportRate_) : time_sub = -30\n",
               "Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -30\n",
               "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Outline_) : time_sub = -30\n",
               "Warning (zq::LM::Drawing::DrawLumoraLinesBody_Main_) : time_sub = -30\n"}));
}

TEST_F(EngineLog, AgeingAloneWarnsAboutTheFirstYoungSampleOnly)
{
    AddAt(0, {1, 1});
    AddAt(500, {2, 1});
    AddAt(600, {3, 1});
    MoveClock(50);
    Frame();
    MoveClock(300);
    EXPECT_EQ(LinesAt(DETAILED, [this] { drawing.DeleteOldPenData(); }),
              Texts{"Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -200\n"});
}

TEST_F(EngineLog, WrappedClockWarnsWithThePlainDifference)
{
    SetClock(0xFFFFFFFF);
    Add({Sample({1, 1})});
    Frame();
    SetClock(1);
    EXPECT_EQ(LinesAt(DETAILED, [this] { drawing.DeleteOldPenData(); }),
              Texts{"Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -4294967294\n"});
}

TEST_F(EngineLog, RateWarningPrintsTheLow32BitsOfTheSpan)
{
    SetClock(0xFFFFFFFF);
    Add({Sample({1, 1}, Hovering)});
    SetClock(1);
    Add({Sample({2, 1}, Hovering)});
    Set([](Params& params) { params.line = 0; });
    const Texts lines = FrameLinesAt(DETAILED);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[2], "Warning (zq::LM::Drawing::CalcPenReportRate_) : time_sub = 2\n"); // of -4294967294
}

TEST_F(EngineLog, DifferenceOfZeroWarnsNowhere)
{
    Set([](Params& params) { params.outline = 1; });
    AddAt(0, {1, 1});
    AddAt(0, {2, 1});
    EXPECT_EQ(FrameLinesAt(ALL), (Texts{MoveLocked, MoveUnlocked}));
}

} // namespace
} // namespace zq::LM::test
