// The one instance that the exports act on: its holder and its life.
#include "interface/instance.h"

#include <new>
#include <utility>

namespace zq::LM {

CoreHolder* g_coreHolder = nullptr;
HMODULE g_module = nullptr;

namespace {

unsigned g_lifeChanges = 0;

// Creating, ending and rebuilding an instance run host code, which may do any of the three again. The host's
// last word counts: a change that finds a later one leaves everything as that one has made it.
class LifeChange {
public:
    LifeChange() : number(++g_lifeChanges) {}
    bool IsLatest() const { return number == g_lifeChanges; }

private:
    unsigned number;
};

// Without memory for the Core itself the holder stays empty; what fails inside the Core passes to the host.
Owned<Core> MakeCore(const Heritage& heritage) { return Owned<Core>(new (std::nothrow) Core(heritage)); }

// A window that stays behind needs the window procedure for as long as the process lasts.
void KeepLibraryLoaded()
{
    HMODULE pinned = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&WindowProcedure), &pinned);
}

// Detached first: whatever the host calls from within finds no instance, or the one that it has just made.
void EndInstance()
{
    const std::unique_ptr<CoreHolder> ending(std::exchange(g_coreHolder, nullptr));
    if (ending == nullptr || ending->core == nullptr) {
        return;
    }
    // Its last messages need the Core: the quit message is posted by it.
    if (HWND window = ending->core->Window(); window != nullptr && DestroyWindow(window) == 0) {
        KeepLibraryLoaded(); // another thread's
    }
}

// The old window is only wiped: destroying it would tell the host to quit.
void Rebuild()
{
    const LifeChange change;
    Owned<Core> old = std::move(g_coreHolder->core);
    KeepLibraryLoaded();
    const Heritage heritage = old->Bequeath();
    old.reset(); // before the new one: only one may hold the system's resources
    if (!change.IsLatest()) {
        return;
    }
    Owned<Core> made = MakeCore(heritage);
    if (made == nullptr || !change.IsLatest()) {
        return;
    }
    Core& core = *made;
    const Hold hold(core);
    g_coreHolder->core = std::move(made);
    core.CreateOverlayWindow();
}

} // namespace

Core* CurrentCore() { return g_coreHolder != nullptr ? g_coreHolder->core.get() : nullptr; }

HWND CurrentWindow()
{
    const Core* core = CurrentCore();
    return core != nullptr ? core->Window() : nullptr;
}

HWND CreateInstance()
{
    const LifeChange change;
    EndInstance();
    if (!change.IsLatest()) {
        return CurrentWindow();
    }
    auto holder = std::make_unique<CoreHolder>();
    holder->core = MakeCore({.module = g_module});
    if (!change.IsLatest()) {
        return CurrentWindow();
    }
    g_coreHolder = holder.release();
    if (Core* core = CurrentCore()) {
        core->CreateOverlayWindow();
    }
    return CurrentWindow();
}

void DestroyInstance()
{
    const LifeChange change;
    EndInstance();
}

void InputPenData(const PenData* samples, std::size_t count)
{
    Core* core = CurrentCore();
    if (core == nullptr) {
        return;
    }
    if (core->IsRebuildDue()) {
        Rebuild();
        return;
    }
    core->InputPenData(samples, count);
}

} // namespace zq::LM
