// What a composition device shows on windows: targets, their visuals and the visuals' content.
#pragma once

#include "support/composition/stand_in_object.h"

#include <dcomp.h>

#ifdef __CRT_UUID_DECL // GCC's headers leave out these two identifiers; others bring theirs along
__CRT_UUID_DECL(IDCompositionVisual, 0x4d93059d, 0x097b, 0x4651, 0x9a, 0x60, 0xf0, 0xf2, 0x51, 0x16, 0xe2,
                0xf3)
__CRT_UUID_DECL(IDCompositionTarget, 0xeacdd04c, 0x117e, 0x4e17, 0x88, 0xf4, 0xd1, 0xb1, 0x2b, 0x0e, 0x3d,
                0x89)
#endif

namespace zq::LM::test {

class SwapChain;

// Shows one swap chain.
class Visual final : public StandInObject<IDCompositionVisual> {
public:
    static constexpr const char* Kind = "Visual";

    Visual() : StandInObject(Kind) {}

    SwapChain* Content() const { return content; }

    STDMETHODIMP SetContent(IUnknown* newContent) override;

    STDMETHODIMP SetOffsetX(float) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetX(IDCompositionAnimation*) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetY(float) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetY(IDCompositionAnimation*) override { return E_NOTIMPL; }
    STDMETHODIMP SetTransform(const D2D_MATRIX_3X2_F&) override { return E_NOTIMPL; }
    STDMETHODIMP SetTransform(IDCompositionTransform*) override { return E_NOTIMPL; }
    STDMETHODIMP SetTransformParent(IDCompositionVisual*) override { return E_NOTIMPL; }
    STDMETHODIMP SetEffect(IDCompositionEffect*) override { return E_NOTIMPL; }
    STDMETHODIMP SetBitmapInterpolationMode(DCOMPOSITION_BITMAP_INTERPOLATION_MODE) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP SetBorderMode(DCOMPOSITION_BORDER_MODE) override { return E_NOTIMPL; }
    STDMETHODIMP SetClip(const D2D_RECT_F&) override { return E_NOTIMPL; }
    STDMETHODIMP SetClip(IDCompositionClip*) override { return E_NOTIMPL; }
    STDMETHODIMP AddVisual(IDCompositionVisual*, BOOL, IDCompositionVisual*) override { return E_NOTIMPL; }
    STDMETHODIMP RemoveVisual(IDCompositionVisual*) override { return E_NOTIMPL; }
    STDMETHODIMP RemoveAllVisuals() override { return E_NOTIMPL; }
    STDMETHODIMP SetCompositeMode(DCOMPOSITION_COMPOSITE_MODE) override { return E_NOTIMPL; }

private:
    ~Visual() override;
    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;

    SwapChain* content = nullptr; // held
};

// A window that shows its root visual, from the commit on that follows SetRoot.
class Target final : public StandInObject<IDCompositionTarget> {
public:
    static constexpr const char* Kind = "Target";

    Target(const void* device, HWND window, bool topmost);

    // A window can have two targets: one above and one below its own picture.
    static bool Exists(HWND window, bool topmost);

    const void* Device() const { return device; }
    void Commit();
    void ShowIfContent(const SwapChain* chain) const;

    STDMETHODIMP SetRoot(IDCompositionVisual* newRoot) override;

private:
    ~Target() override;
    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;
    void SetShown_(SwapChain* chain);

    const void* device; // which one made it
    HWND window;
    bool topmost;
    Visual* root = nullptr;     // held
    SwapChain* shown = nullptr; // held; what the last commit has put on the window
};

// A frame was presented: it appears wherever the swap chain is shown.
void ShowOnTargets(const SwapChain* chain);

// Everything that was set on this device's targets and visuals takes effect.
void CommitTargets(const void* device);

} // namespace zq::LM::test
