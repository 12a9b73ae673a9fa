// Prints what the ink engine calls, answers and logs on random walks. Built natively and for the browser, it
// has to print the same.
#include "engine/steps.h"
#include "ink/drawing.h"
#include "log/debug_log.h"
#include "support/fake_clock.h"
#include "support/recorded_calls.h"
#include "support/recorded_log.h"

#include <cstdint>
#include <iostream>
#include <variant>

namespace zq::LM::test {
namespace {

class Walk {
public:
    Walk()
    {
        SetClock(100'000);
        calls.BindTo(drawing);
    }

    void Take(const Step& step)
    {
        const RecordedLog log;
        std::visit([this](const auto& its) { Do(its); }, step);
        for (const Call& call : calls.Take()) {
            std::cout << call << '\n';
        }
        for (const LogLine& line : log.Lines()) {
            std::cout << line.text;
        }
        std::cout << drawing.LivePointsNum() << ' ' << drawing.PenReoprtRate() << ' '
                  << drawing.EnabledOptions(mask) << '\n';
    }

private:
    void Do(const AddSamples& step) { drawing.AddPenDataAry(step.samples.data(), step.samples.size()); }
    void Do(const DrawFrame&) { drawing.DrawLumoraLines(); }
    void Do(const Tick&) { drawing.DeleteOldPenData(); }
    void Do(const MoveClockBy& step) { AdvanceClock(step.milliseconds); }
    void Do(const UseRecord& step) { drawing.SetParams(&step.params); }
    void Do(const UseScale& step) { drawing.SetScale(step.factor); }
    void Do(const UseVectorOutline& step) { drawing.SetVectorOutline(step.on); }
    void Do(const UseScreen& step)
    {
        calls.screenColour = step.colour;
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
    void Do(const ClearLive&) { drawing.ClearLivePenData(); }
    void Do(const BindAgain&) { calls.BindTo(drawing); }
    void Do(const PassNothing&)
    {
        drawing.SetParams(nullptr);
        drawing.GetCopiedParams(nullptr);
        drawing.AddPenDataAry(nullptr, 1);
    }

    RecordedCalls calls;
    Drawing drawing;
    std::uint32_t mask = 0xFFFFFFFF;
};

} // namespace
} // namespace zq::LM::test

int main()
{
    using namespace zq::LM::test;
    constexpr std::uint32_t Walks = 600; // those of the engine's model test
    constexpr std::size_t StepsInAWalk = 80;
    for (std::uint32_t seed = 0; seed < Walks; ++seed) {
        std::cout << "walk " << seed << '\n';
        Walk walk;
        for (const Step& step : RandomSteps(seed, StepsInAWalk)) {
            walk.Take(step);
        }
        zq::LM::SetDebugLevel(zq::LM::NONE);
    }
}
