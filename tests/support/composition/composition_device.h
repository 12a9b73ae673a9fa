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

    HRESULT STDMETHODCALLTYPE Commit() override;
    HRESULT STDMETHODCALLTYPE CreateTargetForHwnd(HWND window, BOOL topmost,
                                                  IDCompositionTarget** out) override;
    HRESULT STDMETHODCALLTYPE CreateVisual(IDCompositionVisual** out) override;

    HRESULT STDMETHODCALLTYPE WaitForCommitCompletion() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFrameStatistics(DCOMPOSITION_FRAME_STATISTICS*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateSurface(UINT, UINT, DXGI_FORMAT, DXGI_ALPHA_MODE,
                                            IDCompositionSurface**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateVirtualSurface(UINT, UINT, DXGI_FORMAT, DXGI_ALPHA_MODE,
                                                   IDCompositionVirtualSurface**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateSurfaceFromHandle(HANDLE, IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateSurfaceFromHwnd(HWND, IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateTranslateTransform(IDCompositionTranslateTransform**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateScaleTransform(IDCompositionScaleTransform**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateRotateTransform(IDCompositionRotateTransform**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateSkewTransform(IDCompositionSkewTransform**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateMatrixTransform(IDCompositionMatrixTransform**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateTransformGroup(IDCompositionTransform**, UINT,
                                                   IDCompositionTransform**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateTranslateTransform3D(IDCompositionTranslateTransform3D**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateScaleTransform3D(IDCompositionScaleTransform3D**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateRotateTransform3D(IDCompositionRotateTransform3D**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateMatrixTransform3D(IDCompositionMatrixTransform3D**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateTransform3DGroup(IDCompositionTransform3D**, UINT,
                                                     IDCompositionTransform3D**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateEffectGroup(IDCompositionEffectGroup**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateRectangleClip(IDCompositionRectangleClip**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateAnimation(IDCompositionAnimation**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CheckDeviceState(BOOL*) override { return E_NOTIMPL; }

private:
    // The third interface can be held, and nothing else: its references are the device's.
    class Third final : public IUnknown {
    public:
        explicit Third(CompositionDevice& device) : device(device) {}
        virtual ~Third() = default;
        HRESULT STDMETHODCALLTYPE QueryInterface(const GUID& id, void** out) override;
        ULONG STDMETHODCALLTYPE AddRef() override;
        ULONG STDMETHODCALLTYPE Release() override;

    private:
        CompositionDevice& device;
    };

    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;

    Third third;
};

} // namespace zq::LM::test
