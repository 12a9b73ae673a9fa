// The composition device: makes targets and visuals and commits them.
#pragma once

#include "support/composition/stand_in_object.h"

#include <dcomp.h>

namespace zq::LM::test {

class CompositionDevice final : public StandInObject<IDCompositionDevice> {
public:
    static constexpr const char* Kind = "CompositionDevice";
    static constexpr const char* ThirdKind = "CompositionDevice3"; // the same object by its third interface

    CompositionDevice() : StandInObject(Kind), third(*this) {}

    // As the system's functions do, for this interface alone.
    static HRESULT Create(const GUID& id, void** out);

    STDMETHODIMP Commit() override;
    STDMETHODIMP CreateTargetForHwnd(HWND window, BOOL topmost, IDCompositionTarget** out) override;
    STDMETHODIMP CreateVisual(IDCompositionVisual** out) override;

    STDMETHODIMP WaitForCommitCompletion() override { return E_NOTIMPL; }
    STDMETHODIMP GetFrameStatistics(DCOMPOSITION_FRAME_STATISTICS*) override { return E_NOTIMPL; }
    STDMETHODIMP CreateSurface(UINT, UINT, DXGI_FORMAT, DXGI_ALPHA_MODE, IDCompositionSurface**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CreateVirtualSurface(UINT, UINT, DXGI_FORMAT, DXGI_ALPHA_MODE,
                                      IDCompositionVirtualSurface**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CreateSurfaceFromHandle(HANDLE, IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateSurfaceFromHwnd(HWND, IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateTranslateTransform(IDCompositionTranslateTransform**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateScaleTransform(IDCompositionScaleTransform**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateRotateTransform(IDCompositionRotateTransform**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateSkewTransform(IDCompositionSkewTransform**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateMatrixTransform(IDCompositionMatrixTransform**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateTransformGroup(IDCompositionTransform**, UINT, IDCompositionTransform**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CreateTranslateTransform3D(IDCompositionTranslateTransform3D**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CreateScaleTransform3D(IDCompositionScaleTransform3D**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateRotateTransform3D(IDCompositionRotateTransform3D**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateMatrixTransform3D(IDCompositionMatrixTransform3D**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateTransform3DGroup(IDCompositionTransform3D**, UINT, IDCompositionTransform3D**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CreateEffectGroup(IDCompositionEffectGroup**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateRectangleClip(IDCompositionRectangleClip**) override { return E_NOTIMPL; }
    STDMETHODIMP CreateAnimation(IDCompositionAnimation**) override { return E_NOTIMPL; }
    STDMETHODIMP CheckDeviceState(BOOL*) override { return E_NOTIMPL; }

private:
    // The third interface can be held, and nothing else: its references are the device's.
    class Third final : public IUnknown {
    public:
        explicit Third(CompositionDevice& device) : device(device) {}
        virtual ~Third() = default;
        STDMETHODIMP QueryInterface(const GUID& id, void** out) override;
        STDMETHODIMP_(ULONG) AddRef() override;
        STDMETHODIMP_(ULONG) Release() override;

    private:
        CompositionDevice& device;
    };

    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;

    Third third;
};

} // namespace zq::LM::test
