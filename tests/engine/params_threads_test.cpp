// Parameters that change while the overlay draws: frames and ageing read them without a lock, by design.
// ThreadSanitizer runs these with the suppressions of tests/tsan.supp, and with no others.
#include "support/engine_test.h"
#include "support/two_threads.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

constexpr int Rounds = 2000;

class EngineParamsThreads : public EngineTest {
protected:
    EngineParamsThreads()
    {
        const auto line = [this](int, int, int, unsigned, int, int, int, unsigned) { ++lines; };
        drawing.SetCallbacks([] {}, [] {}, [](bool) { return 0x00ABCDEFU; }, line, line,
                             [this](std::vector<PenData>*, unsigned, unsigned) { ++lines; });
    }

    // All that the overlay's thread does in its turn.
    void OverlaysTurn()
    {
        drawing.DrawLumoraLines();
        drawing.DeleteOldPenData();
        EXPECT_GE(drawing.LivePointsNum(), 0);
        drawing.PenReoprtRate();
    }

    std::int64_t lines = 0;
};

TEST_F(EngineParamsThreads, HostFeedsAndChangesParametersBesideTheOverlay)
{
    RunBeside(
        Rounds,
        [this](int round) {
            Set([=](Params& params) {
                params.brushSize = static_cast<std::uint32_t>(round % 50);
                params.inkDecayTime = 50 + static_cast<std::uint32_t>(round % 50);
                params.inkColor = static_cast<std::uint32_t>(round);
                params.line = static_cast<std::uint8_t>(round % 2);
                params.outline =
                    static_cast<std::uint8_t>(round % 3 != 1 || params.line == 0); // something is drawn
                params.zebraMode = params.useOffset = static_cast<std::uint8_t>(round / 2 % 2);
            });
            Add({Sample({round, 1}), Sample({round, 2}),
                 Sample({round, 3}, round % 7 == 0 ? Hovering : Touching)});
            AdvanceClock(1);
        },
        [this] { OverlaysTurn(); });
    EXPECT_GT(lines, 0);
}

TEST_F(EngineParamsThreads, PickedColourIsWrittenBesideTheHostsReading)
{
    Set([](Params& params) { params.colorPicker = 1; });
    Add({Sample({1, 1}, 1)});
    RunBeside(
        Rounds,
        [this](int) {
            EXPECT_EQ(Record().colorPicker, 1);
            EXPECT_EQ(drawing.EnabledOptions(0x1000), 0x1000U);
        },
        [this] { OverlaysTurn(); });
    EXPECT_EQ(Record().inkColor, 0x00ABCDEFU);
}

} // namespace
} // namespace zq::LM::test
