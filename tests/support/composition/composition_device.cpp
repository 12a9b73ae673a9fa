// The composition device: makes targets and visuals and commits them.
#include "support/composition/composition_device.h"

#include "support/composition/composition_tree.h"

namespace zq::LM::test {

namespace {

constexpr GUID ThirdId = {0x0987CB06, 0xF916, 0x48BF, {0x8D, 0x35, 0xCE, 0x76, 0x41, 0x78, 0x1B, 0xD9}};
constexpr HRESULT WindowAlreadyComposed = static_cast<HRESULT>(0x88980800);

} // namespace

HRESULT CompositionDevice::Create(const GUID& id, void** out)
{
    if (id != __uuidof(IDCompositionDevice)) {
        return E_NOINTERFACE;
    }
    *out = static_cast<IDCompositionDevice*>(new CompositionDevice);
    return S_OK;
}

HRESULT CompositionDevice::Commit()
{
    CallScope scope(LUMORA_CALLER, this, "Commit");
    return scope.Do([this] {
        CommitTargets(this);
        return S_OK;
    });
}

HRESULT CompositionDevice::CreateTargetForHwnd(HWND window, BOOL topmost, IDCompositionTarget** out)
{
    CallScope scope(LUMORA_CALLER, this, "CreateTargetForHwnd");
    scope.Arguments(window, topmost);
    return scope.Give(out, Target::Kind, [=, this] {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner != GetCurrentProcessId()) {
            return E_INVALIDARG;
        }
        if (Target::Exists(window, topmost != FALSE)) {
            return WindowAlreadyComposed;
        }
        *out = new Target(this, window, topmost != FALSE);
        return S_OK;
    });
}

HRESULT CompositionDevice::CreateVisual(IDCompositionVisual** out)
{
    CallScope scope(LUMORA_CALLER, this, "CreateVisual");
    return scope.Give(out, Visual::Kind, [out] {
        *out = new Visual;
        return S_OK;
    });
}

HRESULT CompositionDevice::Find_(const GUID& id, void** out, const char*& foundKind)
{
    if (id == ThirdId) {
        foundKind = ThirdKind;
        *out = static_cast<IUnknown*>(&third);
    } else if (id == __uuidof(IUnknown) || id == __uuidof(IDCompositionDevice)) {
        *out = static_cast<IDCompositionDevice*>(this);
    } else {
        return E_NOINTERFACE;
    }
    Hold();
    return S_OK;
}

HRESULT CompositionDevice::Third::QueryInterface(const GUID& id, void** out)
{
    return device.QueryInterface(id, out);
}

ULONG CompositionDevice::Third::AddRef()
{
    CallScope scope(LUMORA_CALLER, this, "AddRef");
    return scope.Added(device.Hold());
}

ULONG CompositionDevice::Third::Release()
{
    CallScope scope(LUMORA_CALLER, this, "Release");
    return scope.Released(device.Drop());
}

} // namespace zq::LM::test
