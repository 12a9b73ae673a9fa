// A composition engine for systems without one.
#include "support/composition/composition_stand_in.h"

#include "support/composition/caller.h"

namespace zq::LM::test {

CompositionStandIn::CompositionStandIn(HMODULE module) : entryPoints(module)
{
    FindSystemModules();
    g_recorder = &recorder;
}

CompositionStandIn::~CompositionStandIn() { g_recorder = nullptr; }

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
