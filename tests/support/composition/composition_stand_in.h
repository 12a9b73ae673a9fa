// A composition engine for systems without one: put under a loaded, unmodified module, it lets the module
// work as on a system that has one, shows what it presents and records what it asks for.
#pragma once

#include "support/composition/call_recorder.h"
#include "support/composition/entry_points.h"

#include <windows.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace zq::LM::test {

// One at a time; to be made before the module's first graphics call, and to outlive what it has made. Steps
// are called "D3D11CreateDevice", "DeviceContext.CreateSolidColorBrush" and the like.
class CompositionStandIn {
public:
    static constexpr unsigned Always = NthCall::Always;

    explicit CompositionStandIn(HMODULE module);
    ~CompositionStandIn();
    CompositionStandIn(const CompositionStandIn&) = delete;
    CompositionStandIn& operator=(const CompositionStandIn&) = delete;

    // The calls since the last Take, in order; as texts such as "Brush#2.Release() = 0".
    std::vector<RecordedCall> Calls() const { return recorder.log.Calls(); }
    std::vector<std::string> Take() { return recorder.log.Take(); }
    std::vector<std::string> TakeOf(const std::string& step) { return recorder.log.TakeOf(step); }
    std::size_t Count(const std::string& step) const { return recorder.log.Count(step); }

    // Whether calls are kept; on at first. A long play would fill the memory with them.
    void KeepCalls(bool keep) { recorder.keepCalls = keep; }

    // From the nth call of the step on, counted from now, so many calls are not made and give this result.
    void Answer(const std::string& step, HRESULT result, unsigned nth = 1, unsigned times = 1);
    bool WereAnswersUsed() const { return recorder.answers.AllUsed(); }
    bool WasAnswerUsed() const { return recorder.answers.AnyUsed(); }
    void AnswerNormally() { recorder.answers.Clear(); }

    // What was presented last, by whichever swap chain.
    const Frame& LastFrame() const { return recorder.lastFrame; }

    // Whether presented frames appear on the screen, which is slow; on at first.
    void Show(bool show) { recorder.show = show; }

    // References that the module holds, by object; objects that it released too often; and the stand-in's own
    // objects that live, by kind.
    std::map<std::string, int> Held() const { return recorder.objects.Held(); }
    const std::vector<std::string>& ReleasedTooOften() const { return recorder.objects.ReleasedTooOften(); }
    std::map<std::string, int> Living() const;

private:
    CallRecorder recorder;
    EntryPoints entryPoints;
};

} // namespace zq::LM::test
