// What a composition device shows on windows: targets, their visuals and the visuals' content.
#include "support/composition/composition_tree.h"

#include "support/composition/swap_chain.h"
#include "support/composition/window_picture.h"

#include <algorithm>
#include <vector>

namespace zq::LM::test {

namespace {

std::vector<Target*> g_targets;

bool IsShowing() { return g_recorder != nullptr && g_recorder->show; }

// Takes hold of the new one first: it may be the old one.
template <typename Object> void Replace(Object*& place, Object* replacement)
{
    if (replacement != nullptr) {
        replacement->Hold();
    }
    if (place != nullptr) {
        place->Drop();
    }
    place = replacement;
}

} // namespace

HRESULT Visual::SetContent(IUnknown* newContent)
{
    CallScope scope(LUMORA_CALLER, this, "SetContent");
    scope.Arguments(newContent);
    return scope.Do([&] {
        SwapChain* chain = SwapChain::From(newContent);
        if (newContent != nullptr && chain == nullptr) {
            return E_INVALIDARG;
        }
        Replace(content, chain);
        return S_OK;
    });
}

Visual::~Visual() { Replace<SwapChain>(content, nullptr); }

HRESULT Visual::Find_(const GUID& id, void** out, const char*&)
{
    if (id != __uuidof(IUnknown) && id != __uuidof(IDCompositionVisual)) {
        return E_NOINTERFACE;
    }
    Hold();
    *out = static_cast<IDCompositionVisual*>(this);
    return S_OK;
}

Target::Target(const void* device, HWND window, bool topmost)
    : StandInObject(Kind), device(device), window(window), topmost(topmost)
{
    g_targets.push_back(this);
}

Target::~Target()
{
    g_targets.erase(std::find(g_targets.begin(), g_targets.end(), this));
    SetShown_(nullptr);
    Replace<Visual>(root, nullptr);
}

bool Target::Exists(HWND window, bool topmost)
{
    return std::any_of(g_targets.begin(), g_targets.end(), [=](const Target* target) {
        return target->window == window && target->topmost == topmost;
    });
}

void Target::Commit() { SetShown_(root != nullptr ? root->Content() : nullptr); }

void Target::SetShown_(SwapChain* chain)
{
    const bool goes = shown != nullptr && chain == nullptr;
    Replace(shown, chain);
    if (goes && IsShowing()) {
        ShowNothing(window);
    }
    ShowIfContent(chain);
}

void Target::ShowIfContent(const SwapChain* chain) const
{
    if (IsShowing() && shown != nullptr && shown == chain && chain->Front().serial != 0) {
        ShowFrame(window, chain->Front());
    }
}

HRESULT Target::SetRoot(IDCompositionVisual* newRoot)
{
    CallScope scope(LUMORA_CALLER, this, "SetRoot");
    scope.Arguments(newRoot);
    return scope.Do([&] {
        Replace(root, static_cast<Visual*>(newRoot)); // there are no others than the stand-in's
        return S_OK;
    });
}

HRESULT Target::Find_(const GUID& id, void** out, const char*&)
{
    if (id != __uuidof(IUnknown) && id != __uuidof(IDCompositionTarget)) {
        return E_NOINTERFACE;
    }
    Hold();
    *out = static_cast<IDCompositionTarget*>(this);
    return S_OK;
}

void ShowOnTargets(const SwapChain* chain)
{
    for (const Target* target : g_targets) {
        target->ShowIfContent(chain);
    }
}

void CommitTargets(const void* device)
{
    for (Target* target : g_targets) {
        if (target->Device() == device) {
            target->Commit();
        }
    }
}

} // namespace zq::LM::test
