// What is recorded while a composition stand-in lives.
#include "support/composition/call_recorder.h"

namespace zq::LM::test {

namespace {

CallRecorder* g_recorder = nullptr;

} // namespace

CallRecorder* Recorder() { return g_recorder; }
void SetRecorder(CallRecorder* recorder) { g_recorder = recorder; }

} // namespace zq::LM::test
