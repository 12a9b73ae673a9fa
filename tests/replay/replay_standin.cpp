// lumora-replay-standin: lumora-replay with a composition engine of its own, for systems that have none.
#include "console.h"
#include "run_replay.h"
#include "text/wide_text.h"

#include "support/composition/composition_stand_in.h"

namespace {

std::shared_ptr<void> PutStandInUnder(HMODULE library)
{
    auto standIn = std::make_shared<zq::LM::test::CompositionStandIn>(library);
    standIn->KeepCalls(false);
    lumora::replay::PrintLine(lumora::replay::Channel::Output,
                              "a stand-in takes the place of the system's composition engine");
    return standIn;
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    return lumora::replay::RunReplay(lumora::text::Utf8Arguments(argc, argv), PutStandInUnder);
}
