// The ink engine on a walk: takes the steps of a host, and records what it calls.
#pragma once

#include "engine/steps.h"
#include "ink/drawing.h"
#include "log/debug_log.h"
#include "support/fake_clock.h"
#include "support/recorded_calls.h"

#include <cstdint>
#include <variant>

namespace zq::LM::test {

class WalkedEngine {
public:
    WalkedEngine()
    {
        SetClock(100'000);
        calls.BindTo(drawing);
    }

    void Take(const Step& step)
    {
        std::visit([this](const auto& its) { Do(its); }, step);
    }

    RecordedCalls calls;
    Drawing drawing;
    std::uint32_t mask = 0xFFFFFFFF; // of the options that are asked for

private:
    void Do(const AddSamples& step)
    {
        const PenData none{};
        drawing.AddPenDataAry(step.samples.empty() ? &none : step.samples.data(), step.samples.size());
    }
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
};

} // namespace zq::LM::test
