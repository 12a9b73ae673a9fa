// The recording of one call, from its entry to its return.
#include "support/composition/call_scope.h"

#include "support/composition/call_recorder.h"
#include "support/composition/caller.h"

namespace zq::LM::test {

namespace {

thread_local int t_depth = 0; // calls under way on this thread

bool IsOfInterest(const void* caller, const void* object)
{
    return t_depth == 0 && g_recorder != nullptr && !IsInSystem(caller) &&
           (object == nullptr || g_recorder->objects.Knows(object));
}

} // namespace

std::int64_t CallScope::Now()
{
    LARGE_INTEGER ticks = {};
    QueryPerformanceCounter(&ticks);
    return ticks.QuadPart;
}

CallScope::CallScope(const void* caller, const void* object, const char* method)
    : recorded(IsOfInterest(caller, object)), kept(recorded && g_recorder->keepCalls), object(object)
{
    ++t_depth;
    if (recorded) {
        call.object = object != nullptr ? NameOf(object) : "";
        call.method = method;
        call.enteredAt = Now();
    }
}

CallScope::~CallScope()
{
    --t_depth;
    if (kept) {
        call.leftAt = Now();
        g_recorder->log.Add(call);
    }
}

std::optional<HRESULT> CallScope::Chosen()
{
    return recorded ? g_recorder->answers.Next(call.Step()) : std::nullopt;
}

HRESULT CallScope::Result(HRESULT result)
{
    call.result = static_cast<std::uint32_t>(result);
    return result;
}

void CallScope::Made(const void* made, const char* kind)
{
    if (recorded) {
        g_recorder->objects.Given(made, kind);
        call.made = NameOf(made);
    }
}

ULONG CallScope::Added(ULONG references)
{
    if (recorded) {
        g_recorder->objects.Added(object);
    }
    call.result = references;
    return references;
}

ULONG CallScope::Released(ULONG references)
{
    if (recorded) {
        g_recorder->objects.Released(object);
    }
    call.result = references;
    return references;
}

} // namespace zq::LM::test
