// The engine's guarded state on two threads. ThreadSanitizer runs these without any suppression.
#include "support/engine_test.h"
#include "support/two_threads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace zq::LM::test {
namespace {

constexpr int Rounds = 2000;

class EngineThreads : public EngineTest {
protected:
    // Only what the overlay's thread alone uses is recorded: no call is kept, so that long runs stay small.
    EngineThreads()
    {
        drawing.SetCallbacks([] {}, [] {}, [](bool) { return 0U; },
                             [this](int, int, int, unsigned, int, int, int, unsigned) { ++lines; },
                             [](int, int, int, unsigned, int, int, int, unsigned) {},
                             [](std::vector<PenData>*, unsigned, unsigned) {});
    }

    std::int64_t lines = 0;
};

TEST_F(EngineThreads, EverySampleAddedBesideFramesArrivesOnce)
{
    Set([](Params& params) { params.inkDecayTime = Forever; });
    constexpr int PerRound = 3;
    RunBeside(
        Rounds,
        [this](int round) {
            const std::int32_t x = round * PerRound;
            Add({Sample({x, 1}, Hovering), Sample({x + 1, 1}, Hovering), Sample({x + 2, 1}, Hovering)});
        },
        [this] { drawing.DrawLumoraLines(); });
    calls.BindTo(drawing);
    const std::vector<std::int32_t> live = LiveX();
    ASSERT_EQ(live.size(), static_cast<std::size_t>(Rounds * PerRound));
    for (std::size_t i = 0; i < live.size(); ++i) {
        ASSERT_EQ(live[i], PerRound + static_cast<std::int32_t>(i));
    }
}

TEST_F(EngineThreads, SamplesAgeBesideTheHostsAdding)
{
    RunBeside(
        Rounds,
        [this](int round) {
            Add({Sample({round, 1}), Sample({round, 2})});
            AdvanceClock(1);
        },
        [this] {
            drawing.DrawLumoraLines();
            drawing.DeleteOldPenData();
            EXPECT_GE(drawing.LivePointsNum(), 0);
            drawing.PenReoprtRate();
        });
    EXPECT_GT(lines, 0);
    AdvanceClock(DefaultParams.inkDecayTime);
    drawing.DrawLumoraLines();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(EngineThreads, ResetMarkersBesideFramesNeverTouchLiveSamples)
{
    Set([](Params& params) { params.inkDecayTime = Forever; });
    Add({Sample({1, 1}), Sample({2, 1})});
    drawing.DrawLumoraLines();
    RunBeside(
        Rounds,
        [this](int) {
            Add({Sample({3, 1}, Hovering), Sample({0, 1})});
        },
        [this] { drawing.DrawLumoraLines(); });
    calls.BindTo(drawing);
    EXPECT_EQ(LiveX(), (std::vector<std::int32_t>{1, 2}));
}

TEST_F(EngineThreads, CountAndRateMayBeReadBesideFrames)
{
    RunBeside(
        Rounds,
        [this](int round) {
            Add({Sample({round, 1}, Hovering)});
            drawing.LivePointsNum();
            drawing.PenReoprtRate();
        },
        [this] { drawing.DrawLumoraLines(); });
    EXPECT_GE(drawing.LivePointsNum(), 1);
}

TEST_F(EngineThreads, RecordsAreCopiedWhole)
{
    const auto filled = [](int value) {
        Params params{};
        std::memset(&params, value, sizeof(params));
        return params;
    };
    const auto isWhole = [](const Params& params) {
        std::array<unsigned char, sizeof(Params)> bytes{};
        std::memcpy(bytes.data(), &params, bytes.size());
        return std::all_of(bytes.begin(), bytes.end(), [&](unsigned char byte) { return byte == bytes[0]; });
    };
    const Params first = filled(1);
    drawing.SetParams(&first);
    RunBeside(
        Rounds,
        [&](int round) {
            const Params params = filled(round % 2 + 1);
            drawing.SetParams(&params);
        },
        [&] {
            EXPECT_TRUE(isWhole(Record()));
            EXPECT_EQ(drawing.EnabledOptions(0xFFFFFFFF), 0x103FU);
        });
}

} // namespace
} // namespace zq::LM::test
