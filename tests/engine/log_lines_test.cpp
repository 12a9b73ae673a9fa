// What the ink engine writes to the log: letter for letter, in order, on the narrow channel, at which level.
#include "support/engine_test.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

#include <string>

namespace zq::LM::test {
namespace {

using Texts = std::vector<std::string>;

class EngineLog : public EngineTest {
protected:
    // Adding, a frame, ageing, the getters, and all that never writes.
    Texts LinesAt(std::uint32_t level)
    {
        const LogLevel set(level);
        const RecordedLog log;
        AddAt(20, {2, 1});
        MoveClock(0);
        Frame();
        drawing.LivePointsNum();
        drawing.PenReoprtRate();
        drawing.AddPenDataAry(nullptr, 1);
        Set([](Params& params) { params.line = params.outline = params.cursor = 0; });
        Add({Sample({1, 1})});
        drawing.EnabledOptions(0xFFFFFFFF);
        drawing.SetScale(1.0);
        drawing.SetVectorOutline(false);
        drawing.ClearLivePenData();
        drawing.DeleteOldPenData();
        Set([](Params& params) { params = DefaultParams; });
        for (const LogLine& line : log.Lines()) {
            EXPECT_FALSE(line.wide) << line.text;
        }
        return log.Texts();
    }
};

TEST_F(EngineLog, LinesAppearAtTheseLevels)
{
    const Texts detailed = {
        "\tAddPenDataAryCore_ is locked.\n",
        "\tAddPenDataAryCore_ is unlocked.\n",
        "\tMovePenData_ is locked.\n",
        "\tMovePenData_ is unlocked.\n",
        "Warning (zq::LM::Drawing::DeleteOldPenDataCore_) : time_sub = -20\n",
    };
    Texts all = detailed;
    all.insert(all.end(), {"\tLivePointsNum is locked.\n", "\tLivePointsNum is unlocked.\n",
                           "\tPenReoprtRate is locked.\n", "\tPenReoprtRate is unlocked.\n"});
    struct Case {
        std::uint32_t level;
        Texts lines;
    };
    for (const Case& tested :
         {Case{0, {}}, Case{1, {}}, Case{2, {}}, Case{3, detailed}, Case{7, detailed}, Case{254, detailed},
          Case{255, all}, Case{256, detailed}, Case{0xFFFFFFFF, detailed}}) {
        EXPECT_EQ(LinesAt(tested.level), tested.lines) << tested.level;
    }
}

} // namespace
} // namespace zq::LM::test
