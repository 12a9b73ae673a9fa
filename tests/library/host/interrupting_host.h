// A host whose code runs inside the library's calls to the system, and which calls the library from there.
#pragma once

#include "lumora/brush_data.h"
#include "support/fakes/memory.h"
#include "support/library/window_test.h"

#include <array>
#include <functional>
#include <optional>

namespace zq::LM::test {

enum class Moment { Before, After }; // of a call to the system

class InterruptingHost : public WindowTest {
protected:
    InterruptingHost() { clock.Set(100'000); }

    // The host's code runs in this call of the library. What the system does of it is as always.
    template <FixedText name, typename Result, typename... Arguments>
    void Interrupt(Result(WINAPI* function)(Arguments...))
    {
        auto& hook = calls.Record<name>(function);
        hook.Before([this](Arguments...) { Reach(Moment::Before); });
        hook.After([this](Arguments...) { Reach(Moment::After); });
    }

    // The n-th call from now on, counted from 1, is the one; of all that are interrupted.
    void Reach(Moment moment);
    void Arm(Moment moment, unsigned number, std::function<void()> action);
    bool HasFired() const { return !action; }
    void Disarm() { action = nullptr; }

    // What a host may do, with an input that is due to rebuild among it.
    struct Action {
        const char* name;
        void (InterruptingHost::*run)();
    };
    static const std::array<Action, 6> Actions;

    void DestroyInside() { library.Destroy(); }
    void CreateInside() { CheckHandle(library.Create()); }
    void CreateAndDestroyInside(); // destroys in the next such call, which belongs to that creation
    void DestroyWindowInside() { ::DestroyWindow(library.GetWindowHandle()); }
    void RebuildInside();
    void UseInside(); // everything that neither makes nor ends an instance

    // An instance's life with all that it does, in which the host may interrupt.
    void Live();

    // Null, or a living window.
    void CheckHandle(HWND window) const { EXPECT_TRUE(window == nullptr || IsWindow(window)); }

    // After a life in which the host interrupted: nothing freed was touched, what is seen is see-through, and
    // a new instance works and is the only one.
    void ExpectIntact();

    // What has been given back since the last time was not touched; from now on it is kept.
    void KeepFreedMemory();

    void ExpectNoSheet() const;

private:
    void ExpectFreedUntouched_();

    Moment armedMoment = Moment::Before;
    unsigned countdown = 0;
    std::function<void()> action;
    std::optional<FreedMemory> freed;
};

} // namespace zq::LM::test
