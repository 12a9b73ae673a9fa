// The one instance that the exports act on: its holder and its life.
#include "interface/instance.h"

#include <new>

namespace zq::LM {

CoreHolder* g_coreHolder = nullptr;
HMODULE g_module = nullptr;

namespace {

// Without memory for the Core itself the holder stays empty; what fails inside the Core passes to the host.
std::unique_ptr<Core> MakeCore(HMODULE module, unsigned creationValue)
{
    return std::unique_ptr<Core>(new (std::nothrow) Core(module, creationValue));
}

// The old window is left in place, cleared, under the new one.
void Rebuild(CoreHolder& holder)
{
    holder.core->ClearForRebuild();
    Params saved = DefaultParams;
    holder.core->GetEngineParams(&saved);
    const HMODULE module = holder.core->Module();
    const unsigned creationValue = holder.core->CreationValue();
    holder.core.reset(); // before the new one: only one may hold the system's resources
    holder.core = MakeCore(module, creationValue);
    if (holder.core != nullptr) {
        holder.core->SetParams(saved);
        holder.core->CreateOverlayWindow();
    }
}

} // namespace

Core* CurrentCore() { return g_coreHolder != nullptr ? g_coreHolder->core.get() : nullptr; }

HWND CreateInstance()
{
    constexpr unsigned CreationValue = 0;
    DestroyInstance();
    auto holder = std::make_unique<CoreHolder>();
    holder->core = MakeCore(g_module, CreationValue);
    g_coreHolder = holder.release();
    Core* core = CurrentCore();
    return core != nullptr ? core->CreateOverlayWindow() : nullptr;
}

void DestroyInstance()
{
    if (g_coreHolder == nullptr) {
        return;
    }
    // The window first: its last messages still find a living Core.
    if (Core* core = CurrentCore(); core != nullptr && core->Window() != nullptr) {
        DestroyWindow(core->Window());
    }
    delete g_coreHolder;
    g_coreHolder = nullptr;
}

void InputPenData(const PenData* samples, std::size_t count)
{
    Core* core = CurrentCore();
    if (core == nullptr) {
        return;
    }
    if (core->IsRebuildDue()) {
        Rebuild(*g_coreHolder);
        return;
    }
    core->InputPenData(samples, count);
}

} // namespace zq::LM
