// A composition engine for systems without one.
#include "support/composition/composition_stand_in.h"

#include "support/composition/caller.h"

#include <algorithm>

namespace zq::LM::test {

CompositionStandIn::CompositionStandIn(HMODULE module) : entryPoints(module)
{
    FindSystemModules();
    SetRecorder(&recorder);
}

CompositionStandIn::~CompositionStandIn() { SetRecorder(nullptr); }

std::vector<std::string> CompositionStandIn::Take()
{
    std::vector<std::string> texts;
    for (const RecordedCall& call : recorder.calls) {
        texts.push_back(call.Text());
    }
    recorder.calls.clear();
    return texts;
}

std::vector<std::string> CompositionStandIn::TakeOf(const std::string& step)
{
    std::vector<std::string> texts;
    for (const RecordedCall& call : recorder.calls) {
        if (call.Step() == step) {
            texts.push_back(call.Text());
        }
    }
    recorder.calls.clear();
    return texts;
}

std::size_t CompositionStandIn::Count(const std::string& step) const
{
    return static_cast<std::size_t>(std::count_if(recorder.calls.begin(), recorder.calls.end(),
                                                  [&](const auto& call) { return call.Step() == step; }));
}

void CompositionStandIn::Answer(const std::string& step, HRESULT result, unsigned nth, unsigned times)
{
    recorder.answers.Choose(step, result, nth, times);
}

std::map<std::string, int> CompositionStandIn::Living() const
{
    std::map<std::string, int> living;
    for (const auto& [kind, count] : recorder.standIns) {
        if (count != 0) {
            living[kind] = count;
        }
    }
    return living;
}

} // namespace zq::LM::test
