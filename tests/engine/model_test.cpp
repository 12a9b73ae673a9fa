// The ink engine beside a plain reference of it: both take the same random steps, and whatever a host, a
// callback or a log reader sees of one has to be what it sees of the other.
#include "engine/reference_engine.h"
#include "engine/steps.h"
#include "ink/drawing.h"
#include "support/fake_clock.h"
#include "support/log_level.h"
#include "support/recorded_calls.h"
#include "support/recorded_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <set>
#include <string>

namespace zq::LM::test {
namespace {

template <class Record> auto WordsOf(const Record& record)
{
    std::array<std::uint32_t, sizeof(Record) / sizeof(std::uint32_t)> words;
    std::memcpy(words.data(), &record, sizeof(record));
    return words;
}

template <class Value>
void Compare(std::string& differences, const char* what, const Value& engine, const Value& reference)
{
    if (engine != reference) {
        differences += std::string(what) + "\n  of the engine:    " + testing::PrintToString(engine) +
                       "\n  of the reference: " + testing::PrintToString(reference) + "\n";
    }
}

class Pair {
public:
    Pair()
    {
        SetClock(100'000);
        reference.screenColour = calls.screenColour;
        calls.BindTo(drawing);
    }

    // What differs after this step, or nothing.
    std::string Take(const Step& step)
    {
        const RecordedLog log;
        reference.lines.clear();
        std::visit([this](const auto& its) { Do(its); }, step);
        Note(reference.calls, reference.lines);
        std::string differences;
        Compare(differences, "calls", calls.Take(), std::exchange(reference.calls, {}));
        Compare(differences, "samples handed over", Words(calls.penData), Words(reference.penData));
        Compare(differences, "count", drawing.LivePointsNum(), reference.LivePointsNum());
        Compare(differences, "rate", drawing.PenReoprtRate(), reference.PenReoprtRate());
        Compare(differences, "options", drawing.EnabledOptions(mask), reference.EnabledOptions(mask));
        Params params{};
        drawing.GetCopiedParams(&params);
        Compare(differences, "record", WordsOf(params), WordsOf(reference.params));
        Compare(differences, "lines", NarrowTexts(log), reference.lines);
        return differences;
    }

    // Kinds of calls and lines that any pair came by.
    static const std::set<std::string>& Met() { return g_met; }

private:
    static std::vector<std::array<std::uint32_t, 9>> Words(const std::vector<PenData>& samples)
    {
        std::vector<std::array<std::uint32_t, 9>> words;
        for (const PenData& sample : samples) {
            words.push_back(WordsOf(sample));
        }
        return words;
    }

    static std::vector<std::string> NarrowTexts(const RecordedLog& log)
    {
        std::vector<std::string> texts;
        for (const LogLine& line : log.Lines()) {
            texts.push_back((line.wide ? "wide: " : "") + line.text);
        }
        return texts;
    }

    void Note(const Calls& made, const std::vector<std::string>& written)
    {
        for (const Call& call : made) {
            g_met.insert(call.name);
        }
        for (const std::string& line : written) {
            g_met.insert(line.substr(0, line.find(" : ")));
        }
    }

    void Do(const AddSamples& step)
    {
        const PenData none{};
        const PenData* const first = step.samples.empty() ? &none : step.samples.data();
        drawing.AddPenDataAry(first, step.samples.size());
        reference.AddPenDataAry(first, step.samples.size());
    }
    void Do(const DrawFrame&)
    {
        drawing.DrawLumoraLines();
        reference.DrawLumoraLines();
    }
    void Do(const Tick&)
    {
        drawing.DeleteOldPenData();
        reference.DeleteOldPenData();
    }
    void Do(const MoveClockBy& step) { AdvanceClock(step.milliseconds); }
    void Do(const UseRecord& step)
    {
        drawing.SetParams(&step.params);
        reference.params = step.params;
    }
    void Do(const UseScale& step)
    {
        drawing.SetScale(step.factor);
        reference.SetScale(step.factor);
    }
    void Do(const UseVectorOutline& step)
    {
        drawing.SetVectorOutline(step.on);
        reference.vectorOutline = step.on;
    }
    void Do(const UseScreen& step)
    {
        calls.screenColour = reference.screenColour = step.colour;
        reference.pickingSetsTheRecord = step.pickingSetsTheRecord;
        calls.whenPicked = [this, step](bool clearFlag) {
            if (step.pickingSetsTheRecord) {
                Params params{};
                drawing.GetCopiedParams(&params);
                params.inkColor = step.colour;
                params.colorPicker = clearFlag ? 0 : params.colorPicker;
                drawing.SetParams(&params);
            }
        };
    }
    void Do(const UseLogLevel& step) { SetDebugLevel(step.level); }
    void Do(const AskOptions& step) { mask = step.mask; }
    void Do(const ClearLive&)
    {
        drawing.ClearLivePenData();
        reference.ClearLivePenData();
    }

    inline static std::set<std::string> g_met;
    RecordedCalls calls;
    Drawing drawing;
    ReferenceEngine reference;
    std::uint32_t mask = 0xFFFFFFFF;
};

// What differs after the first step that shows a difference, or nothing.
std::string Difference(const Steps& steps)
{
    const LogLevel none(NONE); // and again afterwards
    Pair pair;
    for (const Step& step : steps) {
        const std::string differences = pair.Take(step);
        if (!differences.empty()) {
            return differences;
        }
    }
    return {};
}

TEST(EngineModel, RandomWalksAgreeWithTheReference)
{
    constexpr std::uint32_t Walks = 600;
    constexpr std::size_t StepsInAWalk = 80;
    // The same walks every time, but for shuffled runs: --gtest_shuffle --gtest_repeat=100 goes on to others.
    const int run = testing::GTEST_FLAG(shuffle) ? testing::UnitTest::GetInstance()->random_seed() : 0;
    const std::uint32_t first = static_cast<std::uint32_t>(run) * Walks;
    for (std::uint32_t seed = first; seed < first + Walks; ++seed) {
        const Steps steps = RandomSteps(seed, StepsInAWalk);
        if (Difference(steps).empty()) {
            continue;
        }
        const Steps shortest = Shortened(steps, [](const Steps& some) { return !Difference(some).empty(); });
        FAIL() << "Seed " << seed << " ends in different\n"
               << Difference(shortest) << "A test that shows it:\n\nEXPECT_EQ(Difference({\n"
               << Code(shortest) << "}), \"\");";
    }
    const char* const warning = "Warning (zq::LM::Drawing::";
    EXPECT_THAT(Pair::Met(), testing::IsSupersetOf<std::string>(
                                 {"Clear", "Present", "PickColor", "DrawLine", "EraseLine", "DrawPenData",
                                  std::string(warning) + "CalcPenReportRate_)",
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
