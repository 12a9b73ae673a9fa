// What all of the stand-in's own objects have in common.
#pragma once

#include "support/composition/call_recorder.h"
#include "support/composition/call_scope.h"
#include "support/composition/caller.h"

#include <atomic>

namespace zq::LM::test {

// Counts its references, records who takes and drops them, and is itself counted while it lives.
template <typename Interface> class StandInObject : public Interface {
public:
    StandInObject(const StandInObject&) = delete;
    StandInObject& operator=(const StandInObject&) = delete;

    STDMETHODIMP QueryInterface(const GUID& id, void** out) override
    {
        CallScope scope(LUMORA_CALLER, this, "QueryInterface");
        scope.Arguments(id);
        *out = nullptr;
        return scope.Do([&] {
            const char* foundKind = kind;
            const HRESULT result = Find_(id, out, foundKind);
            if (SUCCEEDED(result)) {
                scope.Made(*out, foundKind);
            }
            return result;
        });
    }

    STDMETHODIMP_(ULONG) AddRef() override
    {
        CallScope scope(LUMORA_CALLER, this, "AddRef");
        return scope.Added(Hold());
    }

    STDMETHODIMP_(ULONG) Release() override
    {
        CallScope scope(LUMORA_CALLER, this, "Release");
        return scope.Released(Drop());
    }

    // References among the stand-in's own objects.
    ULONG Hold() { return ++references; }
    ULONG Drop()
    {
        const ULONG remaining = --references;
        if (remaining == 0) {
            delete this;
        }
        return remaining;
    }

protected:
    // Born with one reference, its maker's.
    explicit StandInObject(const char* kind) : kind(kind), recorder(g_recorder)
    {
        if (recorder != nullptr) {
            ++recorder->standIns[kind];
        }
    }

    virtual ~StandInObject()
    {
        if (recorder != nullptr && recorder == g_recorder) {
            --recorder->standIns[kind];
        }
    }

    // Puts the interface into `out` with a reference of its own, and says what to call it.
    virtual HRESULT Find_(const GUID& id, void** out, const char*& foundKind) = 0;

private:
    const char* kind;
    CallRecorder* recorder; // that of its birth
    std::atomic<ULONG> references = 1;
};

} // namespace zq::LM::test
