// The ink engine beside a plain reference of it, on random walks.
#include "engine/engine_pair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace zq::LM::test {
namespace {

TEST(EngineModel, RandomWalksAgreeWithTheReference)
{
    constexpr std::uint32_t Walks = 600;
    constexpr std::size_t StepsInAWalk = 80;
    std::set<std::string> met; // kinds of calls and lines that the walks come by
    const auto note = [&met](const EnginePair& pair) {
        for (const Call& call : pair.MadeCalls()) {
            met.insert(call.name);
        }
        for (const std::string& line : pair.WrittenLines()) {
            met.insert(line.substr(0, line.find(" : ")));
        }
    };
    // The same walks every time, but for shuffled runs: --gtest_shuffle --gtest_repeat=100 goes on to others.
    const int run = testing::GTEST_FLAG(shuffle) ? testing::UnitTest::GetInstance()->random_seed() : 0;
    const std::uint32_t first = static_cast<std::uint32_t>(run) * Walks;
    for (std::uint32_t seed = first; seed < first + Walks; ++seed) {
        const Steps steps = RandomSteps(seed, StepsInAWalk);
        if (!Difference(steps, note).empty()) {
            FAIL() << "Seed " << seed << " ends in different\n" << DifferenceAndTest(steps);
        }
    }
    const char* const warning = "Warning (zq::LM::Drawing::";
    EXPECT_THAT(
        met, testing::IsSupersetOf<std::string>({"Clear", "Present", "PickColor", "DrawLine", "EraseLine",
                                                 "DrawPenData", std::string(warning) + "CalcPenReportRate_)",
                                                 std::string(warning) + "DeleteOldPenDataCore_)",
                                                 std::string(warning) + "DrawLumoraLinesBody_Outline_)",
                                                 std::string(warning) + "DrawLumoraLinesBody_Main_)"}))
        << "the walks do not come by here any more";
}

TEST(EngineModel, ShorteningLeavesWhatTheFailureNeeds)
{
    // As if every frame with three samples of one batch failed.
    const auto fails = [](const Steps& steps) {
        bool full = false;
        for (const Step& step : steps) {
            const auto* const add = std::get_if<AddSamples>(&step);
            full = full || (add != nullptr && add->samples.size() >= 3);
            if (full && std::holds_alternative<DrawFrame>(step)) {
                return true;
            }
        }
        return false;
    };
    const Steps shortest = Shortened(RandomSteps(1, 500), fails);
    ASSERT_EQ(shortest.size(), 2U) << Code(shortest);
    EXPECT_EQ(std::get<AddSamples>(shortest[0]).samples.size(), 3U);
}

} // namespace
} // namespace zq::LM::test
